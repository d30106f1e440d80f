#include "ConsultarServicioSorteos.h"

#include <algorithm>
#include <concepts>
#include <cstdlib>
#include <limits>
#include <new>

#include <pugixml.hpp>

#include "modGeneral.h"

struct RespuestaServicio::Documento {
    std::string cuerpo; // the parser works in it
    pugi::xml_document xml;
};

namespace {

constexpr std::string_view RutaServicio = "/servicios/v1/xml2/eurodreams?";
constexpr std::array<const char*, NCategoriasServicio> NombresCategoria{"CAT6R", "CAT6", "CAT5C",
                                                                        "CAT5",  "CAT4", "CAT3"};

// Empty for a document without a fault.
std::string MotivoDe(pugi::xml_parse_status estado) {
    switch (estado) {
    case pugi::status_ok:
        return "";
    case pugi::status_out_of_memory:
        return "no hay memoria suficiente";
    case pugi::status_no_document_element:
        return "la respuesta no tiene ningún elemento";
    case pugi::status_end_element_mismatch:
        return "las etiquetas de la respuesta no casan";
    default:
        return "la respuesta no es un documento XML bien formado";
    }
}

bool MismoNombre(std::string_view a, std::string_view b) {
    const auto mayuscula = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return mayuscula(x) == mayuscula(y); });
}

// Calls `leer(node)` for the children of this name until one gives false.
template <class Leer>
bool CadaHijo(pugi::xml_node nodo, std::string_view nombre, Leer&& leer) {
    for (const pugi::xml_node hijo : nodo.children())
        if (MismoNombre(hijo.name(), nombre) && !leer(hijo)) return false;
    return true;
}

// Calls `leer(node)` for every `elemento` of the game's lists of this name.
template <class Leer>
bool CadaElemento(const pugi::xml_document& xml, std::string_view juego, std::string_view lista,
                  std::string_view elemento, Leer&& leer) {
    for (const pugi::xml_node raiz : xml.children()) {
        const bool entera = CadaHijo(raiz, juego, [&](pugi::xml_node nodoJuego) {
            return CadaHijo(nodoJuego, lista,
                            [&](pugi::xml_node nodoLista) { return CadaHijo(nodoLista, elemento, leer); });
        });
        if (!entera) return false;
    }
    return true;
}

// Attributes of one element, read until the first failure.
class Atributos {
  public:
    Atributos(pugi::xml_node nodo, std::string& fallo) : nodo_(nodo), fallo_(fallo) {}

    std::string_view Texto(const char* nombre) {
        const pugi::xml_attribute atributo = nodo_.attribute(nombre);
        if (!atributo) Fallar("falta el atributo '" + std::string(nombre) + "' de '" + nodo_.name() + "'");
        return Recortar(atributo.value());
    }

    template <std::integral Entero>
    void Valor(const char* nombre, Entero& destino) {
        const std::string_view texto = Texto(nombre);
        if (!bien_ || LeerEnteroDe(texto, destino)) return;
        Fallar("el valor '" + Corto(texto) + "' de '" + nombre + "' no cabe en su campo");
    }

    void Importe(const char* nombre, double& destino) {
        const std::string_view texto = Texto(nombre);
        if (bien_ && (texto.empty() || !LeerImporte(texto, destino)))
            Fallar("el importe '" + Corto(texto) + "' no es un número");
    }

    // The attribute has to be there but may be blank, for 0.
    void PremioOBlanco(const char* nombre, double& destino) {
        if (!Texto(nombre).empty()) Importe(nombre, destino);
    }
    void CantidadOBlanco(const char* nombre, int32_t& destino) {
        if (!Texto(nombre).empty()) Valor(nombre, destino);
    }

    void Numeros(std::array<uint8_t, 8>& numeros) {
        std::string_view resto = Texto("numeros");
        for (size_t j = 0; bien_; ++j) {
            const size_t corte = resto.find(',');
            const std::string_view parte = Recortar(resto.substr(0, corte));
            if (j >= numeros.size()) {
                if (!parte.empty()) return Fallar("hay más de ocho números en un sorteo");
            } else if (!parte.empty() && !LeerEnteroDe(parte, numeros[j])) {
                return Fallar("el valor '" + Corto(parte) + "' no es un número de sorteo");
            }
            if (corte == std::string_view::npos) return;
            resto.remove_prefix(corte + 1);
        }
    }

    bool Bien() const { return bien_; }

  private:
    template <std::integral Entero>
    static bool LeerEnteroDe(std::string_view texto, Entero& destino) {
        int32_t n = 0;
        if (!LeerEntero(texto, n) || n < std::numeric_limits<Entero>::min() || n > std::numeric_limits<Entero>::max())
            return false;
        destino = static_cast<Entero>(n);
        return true;
    }

    // Enough of a value to recognise it in a box.
    static std::string Corto(std::string_view texto) { return std::string(texto.substr(0, 40)); }

    void Fallar(std::string descripcion) {
        if (bien_) fallo_ = std::move(descripcion);
        bien_ = false;
    }

    pugi::xml_node nodo_;
    std::string& fallo_;
    bool bien_ = true;
};

bool LeerMomento(Atributos& atributos, int16_t& anio, uint16_t& sorteo, uint8_t& dia) {
    atributos.Valor("anio", anio);
    atributos.Valor("sorteo", sorteo);
    dia = CodigoDia(atributos.Texto("dia"));
    return atributos.Bien();
}

bool LeerCategorias(pugi::xml_node nodo, SorteoConPremios& sorteo, std::string& fallo) {
    return CadaHijo(nodo, "ESCRUTINIO", [&](pugi::xml_node escrutinio) {
        for (size_t c = 0; c < NCategoriasServicio; ++c) {
            const bool bien = CadaHijo(escrutinio, NombresCategoria[c], [&](pugi::xml_node categoria) {
                Atributos atributos(categoria, fallo);
                atributos.PremioOBlanco("premio", sorteo.categoria[c].premio);
                if (c != CAT6R) atributos.CantidadOBlanco("acertantes", sorteo.categoria[c].acertantes);
                return atributos.Bien();
            });
            if (!bien) return false;
        }
        return true;
    });
}

// The parser takes fragments too, but an answer is one document.
auto Raices(const pugi::xml_document& xml) {
    return std::count_if(xml.begin(), xml.end(),
                         [](const pugi::xml_node& nodo) { return nodo.type() == pugi::node_element; });
}

} // namespace

RespuestaServicio::RespuestaServicio() : documento_(std::make_unique<Documento>()) {}
RespuestaServicio::~RespuestaServicio() = default;

bool RespuestaServicio::Analizar(std::string cuerpo) {
    documento_->cuerpo = std::move(cuerpo);
    const pugi::xml_parse_result resultado =
        documento_->xml.load_buffer_inplace(documento_->cuerpo.data(), documento_->cuerpo.size());
    motivo_ = MotivoDe(resultado.status);
    if (Legible() && Raices(documento_->xml) > 1) motivo_ = "hay más de un elemento raíz";
    return Legible();
}

bool RespuestaServicio::LeerCombinaciones(std::string_view juego, Sorteos& sorteos) {
    return CadaElemento(documento_->xml, juego, "COMBINACIONES", "COMBINACION", [&](pugi::xml_node nodo) {
        Atributos atributos(nodo, fallo_);
        Sorteo sorteo;
        atributos.Numeros(sorteo.numeros);
        if (!LeerMomento(atributos, sorteo.anio, sorteo.sorteo, sorteo.dia)) return false;
        sorteos.push_back(sorteo);
        return true;
    });
}

bool RespuestaServicio::LeerSorteos(std::string_view juego, std::vector<SorteoConPremios>& sorteos) {
    return CadaElemento(documento_->xml, juego, "SORTEOS", "SORTEO", [&](pugi::xml_node nodo) {
        Atributos atributos(nodo, fallo_);
        SorteoConPremios sorteo;
        if (!LeerMomento(atributos, sorteo.anio, sorteo.sorteo, sorteo.dia)) return false;
        sorteo.fecha = atributos.Texto("fecha");
        atributos.Importe("recaudacion", sorteo.recaudacion);
        atributos.Importe("bote", sorteo.bote);
        if (!atributos.Bien() || !LeerCategorias(nodo, sorteo, fallo_)) return false;
        sorteos.push_back(std::move(sorteo));
        return true;
    });
}

bool ConsultarServicioSorteos(RespuestaServicio& respuesta, const std::string& consulta, Entorno& entorno) {
    if (entorno.Servicio.empty()) {
        respuesta.fallo_ = "no hay ningún servicio de sorteos configurado";
        return false;
    }
    std::string cuerpo;
    const std::string base = entorno.Servicio.substr(0, entorno.Servicio.find_last_not_of('/') + 1);
    try {
        if (!entorno.PedirHttp(base + std::string(RutaServicio) + consulta, cuerpo, respuesta.fallo_)) return false;
        respuesta.Analizar(std::move(cuerpo));
        return true;
    } catch (const std::bad_alloc&) {
        respuesta.fallo_ = "no hay memoria suficiente";
        return false;
    }
}

std::string ServicioConfigurado() {
    const char* deEntorno = std::getenv("TOMBOLERA_SERVICIO");
    return deEntorno != nullptr ? deEntorno : TOMBOLERA_SERVICIO;
}
