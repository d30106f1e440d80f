#include <new>

#include "BloqueXML.h"
#include "Boleto.h"
#include "Ficheros.h"
#include "LeerFiltrosXML.h"
#include "Sesiones.h"
#include "Texto8bits.h"
#include "modGeneral.h"
#include "modXML.h"

namespace {

// Some hundred times the longest base file that can be written.
constexpr int64_t BytesMaximos = int64_t{32} << 20;

struct Apertura {
    Sesion& sesion;
    ErroresDeBase errores;
    std::string BaseASCII; // of the file, for the notice
    bool Importada() const { return sesion.trabajo.cboTipoCombinacion == PronosticoDesdeArchivo; }
};

void LeerPrograma(Apertura& apertura, const ElementoXML& e) {
    // A change of game would clear the marks of an imported base, which the file does not override.
    if (apertura.Importada() || !e.nodo.attribute("IDtipojuego")) return;
    BloqueXML bloque;
    int32_t juego = PRIMITIVA;
    bloque.Valor(e, "IDtipojuego", juego);
    if (juego < 0) bloque.Fallar("el juego " + std::to_string(juego) + " no existe");
    if (bloque.Fallo().empty() && juego <= EURODREAMS) CambiarJuego(apertura.sesion, juego);
    apertura.errores.Anadir(bloque.Fallo(), "TIPOJUEGO");
}

void LeerCombinacion(Apertura& apertura, const ElementoXML& e) {
    if (apertura.Importada()) return;
    EstadoTrabajo& trabajo = apertura.sesion.trabajo;
    BloqueXML bloque;
    BloqueXML::CadaHijo(e.nodo, [&](const ElementoXML& hijo) {
        if (hijo.nombre == "BASE_NUMEROS") bloque.Lista(hijo, "numeros", trabajo.lblNumero, 1);
        if (hijo.nombre != "BASE_REINTEGROS") return;
        bloque.Lista(hijo, "numeros", trabajo.lblReintegro);
        size_t tipo = 0;
        if (bloque.Indice(hijo, "tipo", AlDirecto, Aleatorios, tipo)) trabajo.cboTipoReintegro = static_cast<int>(tipo);
    });
    ActualizarContadores(trabajo);
    apertura.errores.Anadir(bloque.Fallo(), "NUMEROS-REINTEGROS");
}

void LeerGanadora(Apertura& apertura, const ElementoXML& e) {
    BloqueXML bloque;
    bloque.Valores(e, "valor", apertura.sesion.referencia.CombinacionGanadora);
    apertura.errores.Anadir(bloque.Fallo(), "COMBINACION GANADORA");
}

void LeerComplementario(Apertura& apertura, const ElementoXML& e) {
    BloqueXML bloque;
    bloque.Valor(e, "valor", apertura.sesion.referencia.Complementario);
    apertura.errores.Anadir(bloque.Fallo(), "COMPLEMENTARIO");
}

void LeerBaseASCII(Apertura& apertura, const ElementoXML& e) {
    if (apertura.Importada()) return;
    BloqueXML bloque;
    std::string_view valor;
    if (bloque.Atributo(e, "valor", valor)) apertura.BaseASCII = valor;
    apertura.errores.Anadir(bloque.Fallo(), "BASE ASCII");
}

void LeerReduccion(Apertura& apertura, const ElementoXML& e) {
    Sesion& sesion = apertura.sesion;
    AjustesReduccion& r = sesion.trabajo.Reduccion;
    BloqueXML bloque;
    BloqueXML::CadaHijo(e.nodo, [&](const ElementoXML& hijo) {
        if (hijo.nombre == "TIPO") {
            bloque.Valor(hijo, "valor", r.TipoReduccion);
            ActualizarFila(sesion, FilaReduccion);
            if (r.TipoReduccion != 0) sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
        }
        if (hijo.nombre == "PORCENTAJE") bloque.Valor(hijo, "valor", r.PorcentajeReduccion);
        if (hijo.nombre == "ACTIVARNUMEROAPUESTAS") bloque.Valor(hijo, "valor", r.ActivarNumeroApuestas);
        if (hijo.nombre == "NUAPUESTAS") bloque.Valor(hijo, "valor", r.NApuestasExactas);
        if (hijo.nombre == "APUESTASEXACTAS") bloque.Valor(hijo, "valor", r.ApuestasExactas);
        if (hijo.nombre == "ACTIVARCICLOS") bloque.Valor(hijo, "valor", r.ActivarCiclos);
        if (hijo.nombre == "ALEATORIO") bloque.Valor(hijo, "valor", r.Aleatorio);
    });
    apertura.errores.Anadir(bloque.Fallo(), "REDUCCION");
}

void LeerFiltros(Apertura& apertura, const ElementoXML& e) {
    LeerFiltrosXML(e.nodo, apertura.sesion, apertura.errores);
}

struct BloqueDeBase {
    std::string_view Nombre;
    void (*Leer)(Apertura&, const ElementoXML&);
};

constexpr BloqueDeBase BloquesDeBase[] = {
    {"PROGRAMA", LeerPrograma},
    {"COMBINACION", LeerCombinacion},
    {"COMBINACIONGANADORA", LeerGanadora},
    {"COMPLEMENTARIO", LeerComplementario},
    {"BASEASCII", LeerBaseASCII},
    {"REDUCCION", LeerReduccion},
    {"FILTROS", LeerFiltros},
};

// An 8-bit file that is no UTF-8 is read in the system's code page, whatever it declares. UTF-16,
// which has zero bytes, is left to the parser.
bool Cargar(const std::string& ruta, pugi::xml_document& documento) {
    std::string texto, ignorado;
    if (!LeerFichero(ruta, BytesMaximos, texto, ignorado)) return false;
    pugi::xml_encoding codificacion = pugi::encoding_auto;
    if (texto.find('\0') == std::string::npos && !EsUtf8(texto)) {
        texto = Codigo8AUtf8(texto);
        codificacion = pugi::encoding_utf8;
    }
    if (!documento.load_buffer(texto.data(), texto.size(), pugi::parse_default, codificacion)) return false;
    return !documento.document_element().next_sibling(); // a second root is no document
}

// Only the depth of the blocks matters, not the names of the two elements around them.
void Recorrer(const pugi::xml_document& documento, Apertura& apertura) {
    for (const pugi::xml_node raiz : documento.children())
        for (const pugi::xml_node base : raiz.children())
            BloqueXML::CadaHijo(base, [&](const ElementoXML& e) {
                for (const BloqueDeBase& bloque : BloquesDeBase)
                    if (e.nombre == bloque.Nombre) bloque.Leer(apertura, e);
            });
}

void MostrarAvisos(const Apertura& apertura, Entorno& entorno) {
    if (!apertura.errores.Texto.empty())
        entorno.Mensaje(Icono::Critico, "ERRORES detectados al abrir la BASE:\n\n" + apertura.errores.Texto);
    if (!apertura.BaseASCII.empty())
        entorno.Mensaje(Icono::Exclamacion,
                        "AVISO : La Base fue importada desde el fichero en ASCII: (" + apertura.BaseASCII +
                            ")\nDebe importarlo de nuevo con la opción 'Desde Archivo' si quiere que su Combinación "
                            "parta de dicho fichero.");
}

} // namespace

bool AbrirFicheroBase(const std::string& ruta, Sesion& sesion, Entorno& entorno) {
    // The draws are the game's, not the file's: whoever loaded them goes on with them.
    Sorteos sorteos = std::move(sesion.condiciones.SorteosFiltro);
    ReiniciarSesion(sesion, entorno);
    sesion.condiciones.SorteosFiltro = std::move(sorteos);
    sesion.trabajo.Titulo = std::string(PrefijoTitulo) + NombreSinCarpeta(ruta);
    Apertura apertura{sesion, {}, {}};
    bool leido = false;
    try {
        pugi::xml_document documento;
        leido = Cargar(ruta, documento);
        if (leido) Recorrer(documento, apertura);
    } catch (const std::bad_alloc&) {
        leido = false;
    }
    if (!leido) apertura.errores.Anadir("ERROR AL ABRIR EL FICHERO", "FICHERO");
    MostrarAvisos(apertura, entorno);
    sesion.trabajo.CombinacionGuardada = true;
    return leido;
}

bool AbrirBaseXML(Sesion& sesion, Entorno& entorno) {
    const std::string ruta =
        entorno.PedirAbrir({"Abrir Fichero BASE en XML",
                            {{"Fichero BASE de TOMBOLERA (*.XML)", "*.XML"}, {"Todos los archivos (*.*)", "*.*"}},
                            ""});
    return !Recortar(ruta).empty() && AbrirFicheroBase(ruta, sesion, entorno);
}
