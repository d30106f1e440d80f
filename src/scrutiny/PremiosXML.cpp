// The prize file: a calculation kept for later.
#include <cerrno>
#include <new>

#include "BloqueXML.h"
#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "LogicaCalculadoraPremios.h"
#include "TextoXML.h"
#include "modGeneral.h"

namespace {

constexpr int64_t BytesMaximos = int64_t{1} << 20; // a prize file has about one kilobyte

constexpr std::array<std::string_view, NCategoriasPremio> Elementos{"Premios_De6", "Premios_De5C", "Premios_De5",
                                                                    "Premios_De4", "Premios_De3"};

// Reads a draw over what `premios` holds. An empty value is one that was left empty when it was saved.
class LecturaSorteo {
  public:
    explicit LecturaSorteo(PremiosGuardados& premios) : premios_(premios) {}

    void Leer(const ElementoXML& sorteo) {
        premios_.txtAnio = Entero(sorteo, "anio");
        premios_.txtNumeroSorteo = Entero(sorteo, "numero");
        std::string_view dia;
        if (bloque_.Atributo(sorteo, "dia", dia)) LeerDia(Recortar(dia));
        BloqueXML::CadaHijo(sorteo.nodo, [this](const ElementoXML& hijo) {
            for (size_t c = 0; c < NCategoriasPremio; ++c)
                if (hijo.nombre == EnMayusculas(Elementos[c])) LeerCategoria(hijo, c);
        });
    }

    const std::string& Fallo() const { return bloque_.Fallo(); }

  private:
    void LeerDia(std::string_view dia) {
        premios_.cboDia = CodigoDia(dia) - 1;
        if (premios_.cboDia < 0 && !dia.empty()) bloque_.Fallar("el día '" + Corto(dia) + "' no existe");
    }

    void LeerCategoria(const ElementoXML& e, size_t c) {
        premios_.txtCalculadoraPremios[c] = Entero(e, "numeroPremios");
        std::string_view euros;
        if (!bloque_.Atributo(e, "euros", euros)) return;
        double importe = 0;
        if (!LeerImporte(euros, importe)) bloque_.Fallar("el importe '" + Corto(euros) + "' no es un número");
        premios_.txtCalculadoraEuros[c] = Recortar(euros);
    }

    std::string Entero(const ElementoXML& e, const char* atributo) {
        std::string_view texto;
        if (!bloque_.Atributo(e, atributo, texto)) return {};
        texto = Recortar(texto);
        int32_t n = 0;
        if (!texto.empty() && (!LeerEntero(texto, n) || n < 0))
            bloque_.Fallar("el valor '" + Corto(texto) + "' no es un número");
        return std::string(texto);
    }

    // Enough of a value to recognise it in a box.
    static std::string Corto(std::string_view texto) { return std::string(texto.substr(0, 40)); }

    PremiosGuardados& premios_;
    BloqueXML bloque_;
};

// Only the depth matters, not the names of the two elements around. False with what failed.
bool LeerPremios(const pugi::xml_document& documento, PremiosGuardados& premios, std::string& fallo) {
    int sorteos = 0;
    LecturaSorteo lectura(premios);
    for (const pugi::xml_node raiz : documento.children())
        for (const pugi::xml_node base : raiz.children())
            BloqueXML::CadaHijo(base, [&](const ElementoXML& lista) {
                if (lista.nombre != "SORTEOS") return;
                BloqueXML::CadaHijo(lista.nodo, [&](const ElementoXML& sorteo) {
                    if (sorteo.nombre == "SORTEO") lectura.Leer(sorteo), ++sorteos;
                });
            });
    fallo = sorteos == 0 ? "el fichero no guarda ningún sorteo" : lectura.Fallo();
    return fallo.empty();
}

PeticionFichero Peticion(const char* titulo, const char* nombre) {
    return {titulo, {{"Fichero de premios (*.XML)", "*.XML"}, {"todos los archivos (*.*)", "*.*"}}, nombre};
}

} // namespace

std::string LogicaCalculadoraPremios::GenerarPremiosXML() const {
    const FechaHora ahora = entorno.Ahora();
    const CombinacionReferencia& sorteo = escrutar.sesion.referencia;
    TextoXML xml;
    xml.Linea("<XML>");
    xml.Linea("<BASE>");
    xml.Linea("<DatosGeneracionFicheroXML fecha='{:02}/{:02}/{:04}' hora='{:02}:{:02}:{:02}'/>", ahora.Dia, ahora.Mes,
              ahora.Anio, ahora.Hora, ahora.Minuto, ahora.Segundo);
    xml.Linea("<Programa nombre='TOMBOLERA' version='11.1' />");
    xml.Linea("<Sorteos>");
    // The boxes hold figures, but what is pasted into them may be anything.
    xml.Linea("<Sorteo anio='{}' numero='{}' dia='{}'>", EscaparXML(txtAnio), EscaparXML(txtNumeroSorteo),
              cboDia < 0 ? std::string_view() : LetrasDia.substr(static_cast<size_t>(cboDia), 1));
    xml.Linea("<NumerosGanadores valor='{}' />", TextoValores(sorteo.CombinacionGanadora));
    xml.Linea("<Complementario valor='{}' />", sorteo.Complementario);
    for (size_t c = 0; c < NCategoriasPremio; ++c)
        xml.Linea("<{} numeroPremios='{}' euros='{}' />", Elementos[c], EscaparXML(txtCalculadoraPremios[c]),
                  EscaparXML(txtCalculadoraEuros[c]));
    xml.Linea("</Sorteo>");
    xml.Linea("</Sorteos>");
    xml.Linea("</BASE>");
    xml.Linea("</XML>");
    return xml.Texto;
}

bool LogicaCalculadoraPremios::GuardarPremiosXML() {
    std::string ruta = entorno.PedirGuardar(Peticion("Guardar Premios en formato XML", "Sin guardar.xml"));
    if (Recortar(ruta).empty()) return false;
    if (!TieneExtension(ruta, ".xml")) ruta += ".xml";
    FicheroAtomico fichero;
    if (fichero.Abrir(ruta) && fichero.Escribir(GenerarPremiosXML()) && fichero.Confirmar()) return true;
    return FalloAlGuardar(entorno, fichero.Fallo());
}

bool LogicaCalculadoraPremios::AbrirPremiosXML() {
    const std::string ruta = entorno.PedirAbrir(Peticion("Abrir Premios en formato XML", ""));
    return !Recortar(ruta).empty() && CargarPremiosXML(ruta);
}

bool LogicaCalculadoraPremios::CargarPremiosXML(const std::string& ruta) {
    PremiosGuardados premios = *this;
    std::string texto, fallo;
    try {
        pugi::xml_document documento;
        if (LeerFichero(ruta, BytesMaximos, texto, fallo)) {
            const pugi::xml_parse_result analisis = documento.load_buffer(texto.data(), texto.size());
            if (!analisis)
                return Fallo(entorno, std::string("ERROR AL ABRIR EL GRUPO EN XML (") + analisis.description() + ")");
            LeerPremios(documento, premios, fallo);
        }
    } catch (const std::bad_alloc&) {
        fallo = DescripcionFallo(ENOMEM);
    }
    if (!fallo.empty()) return Fallo(entorno, "ERROR AL ABRIR EL FICHERO EN XML (" + fallo + ")");
    static_cast<PremiosGuardados&>(*this) = premios;
    Recalcular();
    return true;
}
