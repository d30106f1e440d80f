// Reading one block of a base file: every value goes straight to its field, and whatever does not
// fit leaves the field as it was and is remembered as the block's failure.
#pragma once

#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "Comunes.h"

/// The name in capitals: elements and filters match whatever their case.
std::string EnMayusculas(std::string_view nombre);

/// One element inside a block.
struct ElementoXML {
    explicit ElementoXML(pugi::xml_node elemento) : nodo(elemento), nombre(EnMayusculas(elemento.name())) {}
    pugi::xml_node nodo;
    std::string nombre; ///< in capitals
};

class BloqueXML {
  public:
    /// The last failure, empty when there was none.
    const std::string& Fallo() const { return fallo_; }
    void Fallar(std::string descripcion) { fallo_ = std::move(descripcion); }

    /// Calls `leer(const ElementoXML&)` for each element inside the node.
    template <class Leer>
    static void CadaHijo(pugi::xml_node nodo, Leer&& leer) {
        for (const pugi::xml_node hijo : nodo.children())
            if (hijo.type() == pugi::node_element) leer(ElementoXML(hijo));
    }

    /// The attribute's value; a missing one fails and gives false.
    bool Atributo(const ElementoXML& e, const char* nombre, std::string_view& valor);

    /// A whole number that fits `destino`.
    template <std::integral Entero>
    void LeerValor(std::string_view texto, Entero& destino) {
        int32_t n = 0;
        if (!LeerNumero(texto, n)) return;
        if (n < std::numeric_limits<Entero>::min() || n > std::numeric_limits<Entero>::max())
            return Fallar("el valor '" + std::string(texto) + "' no cabe en su campo");
        destino = static_cast<Entero>(n);
    }

    /// A decimal number with "." as the separator.
    void LeerValor(std::string_view texto, double& destino);

    /// The attribute as a value of the field's own width.
    template <class Campo>
    void Valor(const ElementoXML& e, const char* atributo, Campo& destino) {
        std::string_view texto;
        if (Atributo(e, atributo, texto)) LeerValor(texto, destino);
    }

    /// The attribute as an index from `minimo` to `maximo`.
    bool Indice(const ElementoXML& e, const char* atributo, int minimo, int maximo, size_t& indice);

    /// A list of indices: sets the flag of each one from `primero` on. Blank leaves the flags alone.
    template <class Marcas>
    void Lista(const ElementoXML& e, const char* atributo, Marcas& marcas, size_t primero = 0) {
        CadaParte(e, atributo, [&](size_t, std::string_view texto) {
            int32_t i = 0;
            if (!LeerNumero(texto, i)) return;
            if (i < static_cast<int32_t>(primero) || i >= static_cast<int32_t>(marcas.size()))
                return Fallar("el valor " + std::to_string(i) + " no existe");
            marcas[static_cast<size_t>(i)] = 1;
        });
    }

    /// A list of values: element j, from 0, goes to entry `primero` + j.
    template <class Campos>
    void Valores(const ElementoXML& e, const char* atributo, Campos& campos, size_t primero = 0) {
        CadaParte(e, atributo, [&](size_t j, std::string_view texto) {
            if (primero + j >= campos.size()) return Fallar("sobran valores");
            LeerValor(texto, campos[primero + j]);
        });
    }

    /// "minimum-maximum"; each bound stands for itself.
    template <class Limite>
    void Limites(const ElementoXML& e, const char* atributo, Limite& minimo, Limite& maximo) {
        std::string_view texto;
        if (!Atributo(e, atributo, texto)) return;
        const size_t guion = texto.find('-');
        LeerValor(texto.substr(0, guion), minimo);
        if (guion == std::string_view::npos) return Fallar("falta el máximo del intervalo");
        const std::string_view resto = texto.substr(guion + 1);
        LeerValor(resto.substr(0, resto.find('-')), maximo);
    }

    /// The `intervalo` elements inside this one.
    template <class Intervalos>
    void LeerIntervalos(const ElementoXML& e, const char* atributo, Intervalos& intervalos) {
        CadaHijo(e.nodo, [&](const ElementoXML& hijo) {
            size_t i = 0;
            if (Indice(hijo, "numero", 1, static_cast<int>(intervalos.size()), i))
                Limites(hijo, atributo, intervalos[i - 1].Minimo, intervalos[i - 1].Maximo);
        });
    }

  private:
    bool LeerNumero(std::string_view texto, int32_t& n);

    // Calls `leer(j, part)` for the parts of the attribute between commas; none for a blank one.
    template <class Leer>
    void CadaParte(const ElementoXML& e, const char* atributo, Leer&& leer) {
        std::string_view resto;
        if (!Atributo(e, atributo, resto) || resto.find_first_not_of(" \t\r\n") == std::string_view::npos) return;
        for (size_t j = 0;; ++j) {
            const size_t corte = resto.find(',');
            leer(j, resto.substr(0, corte));
            if (corte == std::string_view::npos) return;
            resto.remove_prefix(corte + 1);
        }
    }

    std::string fallo_;
};
