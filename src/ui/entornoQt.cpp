#include "entornoQt.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

#include "ClienteHttp.h"
#include "ConsultarServicioSorteos.h"
#include "Pintores.h"
#include "TextoQt.h"
#include "frmInforme.h"
#include "frmVentanaProceso.h"

namespace {

constexpr qint64 PausaTurnos = 10; // ms between two turns of the event loop

// A box whose buttons read the same whatever the desktop's language.
void PrepararCaja(QMessageBox& caja, QMessageBox::Icon icono, const std::string& texto) {
    caja.setObjectName(Q("caja"));
    caja.setWindowTitle(Q("TOMBOLERA"));
    caja.setIcon(icono);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(Q(texto));
}

void Mensaje(Icono icono, const std::string& texto) {
    QMessageBox caja(QApplication::activeWindow());
    PrepararCaja(caja,
                 icono == Icono::Critico       ? QMessageBox::Critical
                 : icono == Icono::Exclamacion ? QMessageBox::Warning
                                               : QMessageBox::Information,
                 texto);
    caja.addButton(Q("Aceptar"), QMessageBox::AcceptRole);
    caja.exec();
}

bool Preguntar(const std::string& texto) {
    QMessageBox caja(QApplication::activeWindow());
    PrepararCaja(caja, QMessageBox::Question, texto);
    const QPushButton* si = caja.addButton(Q("Sí"), QMessageBox::YesRole);
    QPushButton* no = caja.addButton(Q("No"), QMessageBox::NoRole);
    caja.setDefaultButton(no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

// "Ficheros XML (*.xml)|*.xml" as the chooser wants it; both cases of the pattern, since some
// choosers tell them apart.
QStringList FiltrosDe(const PeticionFichero& peticion) {
    QStringList filtros;
    for (const auto& [descripcion, patron] : peticion.Filtros) {
        const QString texto = Q(descripcion), uno = Q(patron);
        QStringList patrones{uno};
        for (const QString& otro : {uno.toLower(), uno.toUpper()})
            if (!patrones.contains(otro)) patrones << otro;
        filtros << texto.left(texto.indexOf(QLatin1Char('('))).trimmed() + Q(" (") + patrones.join(QLatin1Char(' ')) +
                       Q(")");
    }
    return filtros;
}

// The folder of the last choice, to begin the next one in.
QString& UltimaCarpeta() {
    static QString carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return carpeta;
}

QStringList Elegir(const PeticionFichero& peticion, QFileDialog::AcceptMode modo, QFileDialog::FileMode cuantos) {
    QFileDialog dialogo(QApplication::activeWindow(), Q(peticion.Titulo), UltimaCarpeta());
    dialogo.setAcceptMode(modo);
    dialogo.setFileMode(cuantos);
    // A save under the name of an old file replaces it without asking.
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);
    dialogo.setNameFilters(FiltrosDe(peticion));
    if (peticion.FiltroElegido < peticion.Filtros.size())
        dialogo.selectNameFilter(dialogo.nameFilters().at(static_cast<qsizetype>(peticion.FiltroElegido)));
    dialogo.setLabelText(QFileDialog::Accept, modo == QFileDialog::AcceptSave ? Q("Guardar") : Q("Abrir"));
    dialogo.setLabelText(QFileDialog::Reject, Q("Cancelar"));
    dialogo.setLabelText(QFileDialog::FileName, Q("Nombre:"));
    dialogo.setLabelText(QFileDialog::FileType, Q("Tipo:"));
    dialogo.setLabelText(QFileDialog::LookIn, Q("Carpeta:"));
    if (!peticion.Nombre.empty()) dialogo.selectFile(Q(peticion.Nombre));
    if (dialogo.exec() != QDialog::Accepted) return {};
    UltimaCarpeta() = dialogo.directory().absolutePath();
    return dialogo.selectedFiles();
}

std::string Uno(const QStringList& rutas) {
    return rutas.isEmpty() ? std::string() : Utf8(rutas.constFirst());
}

std::vector<std::string> Todos(const QStringList& rutas) {
    std::vector<std::string> textos;
    for (const QString& ruta : rutas) textos.push_back(Utf8(ruta));
    return textos;
}

void CederTurno() {
    static QElapsedTimer reloj;
    if (reloj.isValid() && reloj.elapsed() < PausaTurnos) return;
    PintarAbiertas();
    QApplication::processEvents();
    reloj.start();
}

void MostrarVentanaProceso(LogicaVentanaProceso& logica) {
    frmVentanaProceso ventana(logica, QApplication::activeWindow());
    MostrarModal(ventana, [&ventana] { ventana.Pintar(); });
}

void VerInforme(const std::string& ruta) {
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(Q(ruta)))) return;
    frmInforme informe(Q(ruta), QApplication::activeWindow());
    MostrarModal(informe);
}

bool AbrirDireccion(const std::string& direccion) {
    const QUrl url = QUrl::fromUserInput(Q(direccion));
    return url.isValid() && QDesktopServices::openUrl(url);
}

std::string CarpetaInformes() {
    const QString programa = QApplication::applicationDirPath();
    if (QFileInfo(programa).isWritable()) return Utf8(programa);
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + Q("/TOMBOLERA");
    QDir().mkpath(documentos);
    return Utf8(documentos);
}

std::string Manual() {
    const QString ruta =
        QDir::cleanPath(QApplication::applicationDirPath() + Q("/../share/doc/tombolera/manual/index.html"));
    return QFileInfo::exists(ruta) ? Utf8(QUrl::fromLocalFile(ruta).toString()) : std::string();
}

// A separator as one byte: that of the desktop's language, Spanish where it has none of its own.
char Separador(const QString& delIdioma, char deReserva) {
    if (QLocale::system().language() == QLocale::C || delIdioma.size() != 1) return deReserva;
    const QChar signo = delIdioma.front();
    return signo.isSpace() ? ' ' : signo.unicode() < 128 ? signo.toLatin1() : deReserva;
}

} // namespace

Entorno EntornoQt() {
    Entorno entorno;
    entorno.Mensaje = Mensaje;
    entorno.Preguntar = Preguntar;
    entorno.PedirAbrir = [](const PeticionFichero& peticion) {
        return Uno(Elegir(peticion, QFileDialog::AcceptOpen, QFileDialog::ExistingFile));
    };
    entorno.PedirGuardar = [](const PeticionFichero& peticion) {
        return Uno(Elegir(peticion, QFileDialog::AcceptSave, QFileDialog::AnyFile));
    };
    entorno.PedirVarios = [](const PeticionFichero& peticion) {
        return Todos(Elegir(peticion, QFileDialog::AcceptOpen, QFileDialog::ExistingFiles));
    };
    entorno.CederTurno = CederTurno;
    entorno.MostrarVentanaProceso = MostrarVentanaProceso;
    entorno.VerInforme = VerInforme;
    entorno.AbrirDireccion = AbrirDireccion;
    entorno.PedirHttp = [](const std::string& url, std::string& cuerpo, std::string& fallo) {
        const auto seguir = [] {
            CederTurno();
            return true;
        };
        return PedirHttp(url, cuerpo, fallo, seguir);
    };
    entorno.Servicio = ServicioConfigurado();
    entorno.Ahora = AhoraDelSistema;
    entorno.Pitar = [] { QApplication::beep(); };
    entorno.CarpetaInformes = CarpetaInformes();
    entorno.Sitio = qEnvironmentVariable("TOMBOLERA_SITIO", Q(TOMBOLERA_SITIO)).toStdString();
    entorno.Manual = Manual();
    entorno.SeparadorMiles = Separador(QLocale::system().groupSeparator(), '.');
    entorno.SeparadorDecimal = Separador(QLocale::system().decimalPoint(), ',');
    return entorno;
}
