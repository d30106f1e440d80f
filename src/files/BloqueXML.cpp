#include "BloqueXML.h"

#include "modGeneral.h"

std::string EnMayusculas(std::string_view nombre) {
    std::string mayusculas(nombre);
    for (char& c : mayusculas)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return mayusculas;
}

bool BloqueXML::Atributo(const ElementoXML& e, const char* nombre, std::string_view& valor) {
    const pugi::xml_attribute atributo = e.nodo.attribute(nombre);
    if (!atributo) {
        Fallar("falta el atributo '" + std::string(nombre) + "'");
        return false;
    }
    valor = atributo.value();
    return true;
}

bool BloqueXML::LeerNumero(std::string_view texto, int32_t& n) {
    if (LeerEntero(texto, n)) return true;
    Fallar("valor no válido: '" + std::string(texto.substr(0, 20)) + "'");
    return false;
}

void BloqueXML::LeerValor(std::string_view texto, double& destino) {
    const std::string_view numero = Recortar(texto);
    double leido = 0;
    const auto [fin, error] = std::from_chars(numero.data(), numero.data() + numero.size(), leido);
    if (error != std::errc() || fin != numero.data() + numero.size() || !std::isfinite(leido))
        return Fallar("valor no válido: '" + std::string(texto.substr(0, 20)) + "'");
    destino = leido;
}

bool BloqueXML::Indice(const ElementoXML& e, const char* atributo, int minimo, int maximo, size_t& indice) {
    std::string_view texto;
    int32_t n = 0;
    if (!Atributo(e, atributo, texto) || !LeerNumero(texto, n)) return false;
    if (n < minimo || n > maximo) {
        Fallar("el " + std::string(atributo) + " " + std::to_string(n) + " no existe");
        return false;
    }
    indice = static_cast<size_t>(n);
    return true;
}
