#include "LogicaVisualizar.h"

#include <algorithm>

#include "Ficheros.h"
#include "modGeneral.h"
#include "modImportarASCII.h"

LogicaVisualizar::LogicaVisualizar(EstadoTrabajo& estado, Entorno& mundo)
    : chkReintegros(estado.cboTipoJuego == PRIMITIVA), trabajo(estado), entorno(mundo) {}

int32_t LogicaVisualizar::Boletos() const {
    const auto apuestas = static_cast<int32_t>(ApuestasVisor.Apuestas());
    return (apuestas + ApuestasPorBoleto() - 1) / ApuestasPorBoleto();
}

int32_t LogicaVisualizar::FilasDeBoleto(int32_t t) const {
    const auto apuestas = static_cast<int32_t>(ApuestasVisor.Apuestas());
    return std::min(ApuestasPorBoleto(), apuestas - (t - 1) * ApuestasPorBoleto());
}

std::string LogicaVisualizar::lblNumeroBoleto() const {
    return "Boleto actual : " + std::to_string(BoletoActual) + "/" + std::to_string(Boletos());
}

std::string LogicaVisualizar::Titulo() const {
    return "VISUALIZAR ARCHIVO DE APUESTAS (TIPO DE JUEGO SELECCIONADO: " + trabajo.TipoJuego() + ")";
}

std::string LogicaVisualizar::TextoTabla() const {
    if (!Navegable) return "";
    std::string tabla = "Apuesta\t1\t2\t3\t4\t5\t6\t" + LetraDigito() + "\n";
    for (size_t r = 0; r < static_cast<size_t>(FilasDeBoleto(BoletoActual)); ++r) {
        tabla += std::to_string(r + 1);
        for (size_t c = 0; c < 6; ++c) tabla += "\t" + lblColumna[r * 6 + c];
        tabla += "\t" + lblReintegro[r] + "\n";
    }
    return tabla;
}

void LogicaVisualizar::cmdDesdeFichero() {
    const std::string ruta = entorno.PedirAbrir(PeticionAbrirApuestas());
    if (!ruta.empty()) Cargar(ruta);
}

bool LogicaVisualizar::Cargar(const std::string& ruta) {
    txtFicheroASCII = ruta;
    lblApuestas = "0";
    lblColumna.fill("");
    lblReintegro.fill("");
    Navegable = false;
    BoletoActual = 0;
    const int32_t leidas =
        LeerApuestas(ruta, chkReintegros, ApuestasVisor, &lblApuestas, trabajo.JuegoActual(), entorno);
    if (leidas == 0) {
        ApuestasVisor.Vaciar();
        lblApuestas = "0";
        return Fallo(entorno, AvisoSinApuestas);
    }
    lblApuestas = FormatoMiles(leidas, entorno.SeparadorMiles);
    Navegable = true;
    txtBoletoDESDE = "1";
    txtBoletoHASTA = std::to_string(std::min(Boletos(), BoletosPorImpresion));
    Mostrar(1);
    return true;
}

void LogicaVisualizar::Mostrar(int32_t boleto) {
    BoletoActual = boleto;
    lblColumna.fill("");
    lblReintegro.fill("");
    const int64_t primera = int64_t{boleto - 1} * ApuestasPorBoleto() + 1;
    for (int32_t r = 0; r < FilasDeBoleto(boleto); ++r) {
        for (int c = 1; c <= 6; ++c)
            lblColumna[static_cast<size_t>(r * 6 + c - 1)] = Formato00(ApuestasVisor(c, primera + r));
        if (chkReintegros) lblReintegro[static_cast<size_t>(r)] = Formato00(ApuestasVisor(7, primera + r));
    }
}

void LogicaVisualizar::imgPrimero() {
    if (PuedeRetroceder()) Mostrar(1);
}

void LogicaVisualizar::imgRetroceder() {
    if (PuedeRetroceder()) Mostrar(BoletoActual - 1);
}

void LogicaVisualizar::imgAvanzar() {
    if (PuedeAvanzar()) Mostrar(BoletoActual + 1);
}

void LogicaVisualizar::imgUltimo() {
    if (PuedeAvanzar()) Mostrar(Boletos());
}

bool LogicaVisualizar::IrABoleto() {
    if (!Navegable) return false;
    double boleto = 0;
    if (!LeerDecimal(txtIrboleto, boleto) || boleto < 1 || boleto > Boletos())
        return Fallo(entorno, "ERROR: EL NUMERO DE BOLETO DEBE ESTAR ENTRE 1 y " + std::to_string(Boletos()));
    Mostrar(static_cast<int32_t>(boleto));
    return true;
}

void LogicaVisualizar::CambiarReintegros(bool activo) {
    chkReintegros = activo;
    if (!activo) lblReintegro.fill("");
}

std::vector<ApuestaDeBoleto> LogicaVisualizar::ApuestasDeBoleto(int32_t t) const {
    std::vector<ApuestaDeBoleto> apuestas;
    const int64_t primera = int64_t{t - 1} * ApuestasPorBoleto() + 1;
    for (int32_t r = 0; t >= 1 && r < FilasDeBoleto(t); ++r) {
        ApuestaDeBoleto apuesta;
        for (size_t c = 0; c < 6; ++c) apuesta.numeros[c] = ApuestasVisor(static_cast<int>(c) + 1, primera + r);
        if (chkReintegros) apuesta.digito = ApuestasVisor(7, primera + r);
        apuestas.push_back(apuesta);
    }
    return apuestas;
}

bool LogicaVisualizar::BoletosParaImprimir(int32_t& desde, int32_t& hasta) {
    if (!Navegable) return Fallo(entorno, "AVISO: No hay ningún fichero abierto");
    if (!LeerEntero(Recortar(txtBoletoDESDE), desde) || !LeerEntero(Recortar(txtBoletoHASTA), hasta) || desde < 1 ||
        hasta > Boletos() || desde > hasta)
        return Fallo(entorno, "ERROR: Los boletos que se imprimen van del 1 al " + std::to_string(Boletos()));
    if (hasta - desde >= BoletosPorImpresion)
        return Fallo(entorno, "ERROR: Se pueden imprimir " + std::to_string(BoletosPorImpresion) +
                                  " boletos cada vez como máximo");
    return true;
}

std::string LogicaVisualizar::PedirRutaPdf() {
    const std::string nombre = NombreSinCarpeta(txtFicheroASCII);
    const std::string ruta = entorno.PedirGuardar({"Exportar boletos",
                                                   {{"Documento PDF (*.PDF)", "*.PDF"}},
                                                   RutaConExtension(nombre.empty() ? "boletos" : nombre, ".pdf")});
    return Recortar(ruta).empty() ? std::string() : RutaConExtension(ruta, ".pdf");
}
