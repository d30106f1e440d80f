// What the orders share in declaring their arguments: Spanish help, checks and error texts.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Lote.h"

// The parser's own header costs each source that reads it many seconds: only this module's does.
namespace CLI {
class App;
class Option;
class ParseError;
} // namespace CLI

/// An argument that has just been declared, for what else holds of it.
class Opcion {
  public:
    explicit Opcion(CLI::Option* opcion) : opcion_(opcion) {}

    Opcion Obligatoria(bool si = true) const;
    /// It may only be given together with the other one.
    Opcion VaCon(const Opcion& otra) const;
    Opcion Descripcion(const std::string& texto) const;
    /// `comprobar` gives the error of a value, empty when it is right.
    Opcion Comprobar(const std::function<std::string(const std::string&)>& comprobar) const;

  private:
    CLI::Option* opcion_;
};

/// Ends the reading of the arguments with this error.
[[noreturn]] void ArgumentoMalo(const std::string& nombre, const std::string& texto);

/// The program's own name, help, version and options.
void DeclararPrograma(CLI::App& programa, OpcionesLote& opciones);

/// A new order with its help; `ejecutar` becomes the order of the run when it is the one given.
CLI::App* NuevaOrden(CLI::App& programa, Lote& lote, const std::string& nombre, const std::string& descripcion,
                     const std::function<bool(Lote&)>& ejecutar);

/// An argument whose value `leer` takes; `tipo` stands for it in the help.
Opcion OpcionLeida(CLI::App* orden, const std::string& nombre, const std::string& tipo,
                   const std::function<void(const std::string& valor)>& leer, const std::string& descripcion);

/// An option without a value.
Opcion Bandera(CLI::App* orden, const std::string& nombre, bool& valor, const std::string& descripcion);

/// One file after the other, at least one.
Opcion Ficheros(CLI::App* orden, const std::string& nombre, std::vector<std::string>& rutas,
                const std::string& descripcion);

/// Runs once all arguments have been read, to compare them with each other.
void AlLeerTodos(CLI::App* orden, const std::function<void()>& comprobar);

/// A file argument: an option when the name begins with dashes, otherwise positional and needed. The
/// name of the file may not be empty.
Opcion Fichero(CLI::App* orden, const std::string& nombre, std::string& ruta, const std::string& descripcion);

/// `--juego`, as the position in the list of games.
Opcion OpcionJuego(CLI::App* orden, int& juego);

/// A whole number of `minimo` to `maximo`.
Opcion EnteroEntre(CLI::App* orden, const std::string& nombre, int& valor, int minimo, int maximo,
                   const std::string& descripcion);

/// Two whole numbers of 0 or more, "A-B", as the texts of the two fields that they are for.
Opcion OpcionIntervalo(CLI::App* orden, const std::string& nombre, std::string& desde, std::string& hasta,
                       const std::string& descripcion);

/// A whole number from `minimo` up that fits 32 bits.
Opcion Entero(CLI::App* orden, const std::string& nombre, int32_t& valor, int32_t minimo,
              const std::string& descripcion);

/// Numbers of 1 to 49 with commas between.
Opcion ListaNumeros(CLI::App* orden, const std::string& nombre, std::vector<int>& numeros,
                    const std::string& descripcion);

/// The error of a parse and how the order is used, in Spanish.
std::string TextoError(const CLI::App& programa, const CLI::ParseError& error);
