#include "Argumentos.h"

#include <algorithm>

#include <CLI/CLI.hpp>

#include "Juegos.h"
#include "NumerosTexto.h"
#include "modGeneral.h"

namespace {

CLI::Formatter Formato() {
    CLI::Formatter formato;
    formato.column_width(26);
    for (const auto& [clave, texto] : {std::pair{"Usage", "Uso"},
                                       {"Positionals", "Argumentos"},
                                       {"OPTIONS", "opciones"},
                                       {"SUBCOMMAND", "ORDEN [argumentos]"},
                                       {"REQUIRED", ""},
                                       {"Needs", "Va con"}})
        formato.label(clave, texto);
    return formato;
}

// The piece of an error's text that names what it is about.
std::string Antes(const std::string& texto, const std::string& marca) {
    return texto.substr(0, texto.find(marca));
}
std::string Despues(const std::string& texto, const std::string& marca) {
    const size_t hay = texto.find(marca);
    return hay == std::string::npos ? texto : texto.substr(hay + marca.size());
}

std::string Falta(const CLI::App& programa, const std::string& cosa) {
    if (cosa != "A subcommand") return "falta " + cosa;
    const auto sobran = programa.remaining(); // a word that is no order
    return sobran.empty() ? "falta la orden" : "no se espera " + sobran.front();
}

std::string Motivo(const CLI::App& programa, const CLI::ParseError& error) {
    const std::string texto = error.what();
    switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::RequiredError:
        return Falta(programa, Antes(texto, " is required"));
    case CLI::ExitCodes::ExtrasError:
        return "no se espera " + Despues(texto, ": ");
    case CLI::ExitCodes::ArgumentMismatch:
        return texto.find(" missing") != std::string::npos ? Antes(texto, ":") + " necesita un valor"
                                                           : Antes(texto, ":") + " se ha dado más de una vez";
    case CLI::ExitCodes::RequiresError:
        return Antes(texto, " requires ") + " sólo vale con " + Despues(texto, " requires ");
    default:
        return texto; // the checks below write theirs in Spanish
    }
}

std::string ComprobarFichero(const std::string& ruta) {
    return ruta.empty() ? "el nombre del fichero está vacío" : "";
}

std::string ComprobarServicio(const std::string& direccion) {
    for (const std::string_view esquema : {"http://", "https://"})
        if (direccion.starts_with(esquema) && direccion.size() > esquema.size()) return "";
    return "se espera una dirección como https://servidor:puerto, no " + direccion;
}

} // namespace

void DeclararPrograma(CLI::App& programa, OpcionesLote& opciones) {
    programa.name("tombolera-lote");
    programa.description("TOMBOLERA sin ventanas: calcula sistemas y trabaja con sus ficheros.");
    programa.footer("El resultado sale por la salida estándar; los avisos y errores, por la de errores.\n"
                    "Estado de salida: 0 bien, 1 un mensaje terminó la orden, 2 argumentos incorrectos,\n"
                    "130 interrumpida. La ayuda de una orden: tombolera-lote ORDEN --ayuda");
    programa.formatter(std::make_shared<CLI::Formatter>(Formato()));
    programa.option_defaults()->group("Opciones");
    programa.set_help_flag("--ayuda", "Muestra esta ayuda")->group("Opciones");
    programa.set_version_flag("--version", "", "Muestra la versión")->group("Opciones");
    programa.add_flag("--si", opciones.Si, "Contesta «sí» a las preguntas; sin ella se contesta «no»");
    programa.add_option("--carpeta", opciones.Carpeta, "Carpeta de los informes; si falta, la actual")
        ->type_name("DIR")
        ->check(ComprobarFichero);
    programa.add_option("--servicio", opciones.Servicio, "Dirección del servicio de sorteos")
        ->type_name("URL")
        ->check(ComprobarServicio);
    programa.require_subcommand(1);
    programa.fallthrough();
}

CLI::App* NuevaOrden(CLI::App& programa, Lote& lote, const std::string& nombre, const std::string& descripcion,
                     const std::function<bool(Lote&)>& ejecutar) {
    CLI::App* orden = programa.add_subcommand(nombre, descripcion);
    orden->group("Órdenes");
    orden->footer("");
    orden->set_help_flag("--ayuda", "Muestra esta ayuda")->group("Opciones");
    orden->callback([&lote, ejecutar] { lote.Orden = ejecutar; });
    return orden;
}

Opcion Opcion::Obligatoria(bool si) const {
    opcion_->required(si);
    return *this;
}

Opcion Opcion::VaCon(const Opcion& otra) const {
    opcion_->needs(otra.opcion_);
    return *this;
}

Opcion Opcion::Descripcion(const std::string& texto) const {
    opcion_->description(texto);
    return *this;
}

Opcion Opcion::Comprobar(const std::function<std::string(const std::string&)>& comprobar) const {
    opcion_->check(comprobar);
    return *this;
}

void ArgumentoMalo(const std::string& nombre, const std::string& texto) {
    throw CLI::ValidationError(nombre, texto);
}

Opcion OpcionLeida(CLI::App* orden, const std::string& nombre, const std::string& tipo,
                   const std::function<void(const std::string& valor)>& leer, const std::string& descripcion) {
    const CLI::callback_t tomar = [leer](const CLI::results_t& valores) {
        leer(valores.front());
        return true;
    };
    return Opcion(orden->add_option(nombre, tomar, descripcion)->type_name(tipo));
}

Opcion Bandera(CLI::App* orden, const std::string& nombre, bool& valor, const std::string& descripcion) {
    return Opcion(orden->add_flag(nombre, valor, descripcion));
}

Opcion Ficheros(CLI::App* orden, const std::string& nombre, std::vector<std::string>& rutas,
                const std::string& descripcion) {
    return Opcion(orden->add_option(nombre, rutas, descripcion)->type_name("")->required());
}

void AlLeerTodos(CLI::App* orden, const std::function<void()>& comprobar) {
    orden->parse_complete_callback(comprobar);
}

Opcion Fichero(CLI::App* orden, const std::string& nombre, std::string& ruta, const std::string& descripcion) {
    CLI::Option* opcion = orden->add_option(nombre, ruta, descripcion)->check(ComprobarFichero);
    return Opcion(nombre.starts_with("--") ? opcion->type_name("F") : opcion->type_name("")->required());
}

Opcion OpcionJuego(CLI::App* orden, int& juego) {
    const auto leer = [&juego](const std::string& texto) {
        const auto hay = std::find_if(Juegos.begin(), Juegos.end(), [&](const Juego& j) { return j.Nombre == texto; });
        if (hay == Juegos.end()) ArgumentoMalo("--juego", "se espera PRIMITIVA, BONOLOTO o EURODREAMS, no " + texto);
        juego = static_cast<int>(hay - Juegos.begin());
    };
    return OpcionLeida(orden, "--juego", "J", leer, "PRIMITIVA (si falta), BONOLOTO o EURODREAMS");
}

Opcion EnteroEntre(CLI::App* orden, const std::string& nombre, int& valor, int minimo, int maximo,
                   const std::string& descripcion) {
    const auto leer = [&valor, nombre, minimo, maximo](const std::string& texto) {
        if (!LeerEntero(texto, valor) || valor < minimo || valor > maximo)
            ArgumentoMalo(nombre, "se espera un número de " + std::to_string(minimo) + " a " + std::to_string(maximo) +
                                      ", no " + texto);
    };
    return OpcionLeida(orden, nombre, "N", leer, descripcion);
}

Opcion OpcionIntervalo(CLI::App* orden, const std::string& nombre, std::string& desde, std::string& hasta,
                       const std::string& descripcion) {
    const auto leer = [&desde, &hasta, nombre](const std::string& texto) {
        const size_t guion = texto.find('-');
        const auto sonCifras = [](const std::string& t) {
            return !t.empty() && t.find_first_not_of("0123456789") == std::string::npos;
        };
        desde = texto.substr(0, guion);
        hasta = guion == std::string::npos ? "" : texto.substr(guion + 1);
        if (!sonCifras(desde) || !sonCifras(hasta))
            ArgumentoMalo(nombre, "se esperan dos números como 10-20, no " + texto);
    };
    return OpcionLeida(orden, nombre, "A-B", leer, descripcion);
}

Opcion Entero(CLI::App* orden, const std::string& nombre, int32_t& valor, int32_t minimo,
              const std::string& descripcion) {
    const auto leer = [&valor, nombre, minimo](const std::string& texto) {
        if (!LeerEntero(texto, valor) || valor < minimo)
            ArgumentoMalo(nombre, "se espera un número entero desde " + std::to_string(minimo) + ", no " + texto);
    };
    return OpcionLeida(orden, nombre, "N", leer, descripcion);
}

Opcion ListaNumeros(CLI::App* orden, const std::string& nombre, std::vector<int>& numeros,
                    const std::string& descripcion) {
    const auto leer = [&numeros, nombre](const std::string& texto) {
        const NumerosLeidos leidos = LeerNumeros(texto, NumeroMaximoBoleto);
        if (leidos.Numeros.empty() || !leidos.Erroneos.empty())
            ArgumentoMalo(nombre, "se esperan números de 1 a 49 separados por comas, no " +
                                      (leidos.Erroneos.empty() ? "\"\"" : leidos.Erroneos.front()));
        numeros = leidos.Numeros;
    };
    return OpcionLeida(orden, nombre, "L", leer, descripcion);
}

std::string TextoError(const CLI::App& programa, const CLI::ParseError& error) {
    const auto elegidas = programa.get_subcommands();
    const CLI::App& orden = elegidas.empty() ? programa : *elegidas.front();
    const std::string nombre = programa.get_name() + (elegidas.empty() ? "" : " " + orden.get_name());
    return programa.get_name() + ": " + Motivo(programa, error) + "\n" + Formato().make_usage(&orden, nombre) +
           "Ayuda: " + nombre + " --ayuda\n";
}
