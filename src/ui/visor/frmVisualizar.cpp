#include "frmVisualizar.h"

#include <QPrintDialog>
#include <QPrinter>

#include "CopiarTabla.h"
#include "FiltroTeclas.h"
#include "ImprimirBoletos.h"
#include "MarcoFiltro.h"
#include "Mientras.h"
#include "PieHerramienta.h"
#include "SoltarFicheros.h"
#include "TextoQt.h"

frmVisualizar::frmVisualizar(EstadoTrabajo& trabajo, Entorno& entorno, QWidget* padre)
    : QDialog(padre), logica(trabajo, entorno) {
    QVBoxLayout* caja = EmpezarVentana(*this, "frmVisualizar", logica.Titulo(), "Visualizar archivo de apuestas",
                                       "Las apuestas de un fichero, boleto a boleto, tal como se rellenan en papel.");
    fichero = CrearFilaFichero(*caja, {"cmdDesdeFichero", "Abrir archivo", "Abre un fichero de apuestas o de texto",
                                       "txtFicheroASCII", "lblApuestas",
                                       [this] { Trabajar([this] { logica.cmdDesdeFichero(); }); }});
    const Juego& juego = trabajo.JuegoActual();
    chkReintegros = new QCheckBox(juego.TieneDigito() ? Q(juego.CargarReintegros) : Q("Cargar Reintegros"));
    chkReintegros->setObjectName(Q("chkReintegros"));
    chkReintegros->setToolTip(Q("Muestra el dígito de cada apuesta"));
    connect(chkReintegros, &QCheckBox::clicked, this, [this](bool si) { logica.CambiarReintegros(si), Pintar(); });
    caja->addWidget(chkReintegros);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(2 * Paso);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(CrearTabla());
    izquierda->addLayout(CrearNavegacion());
    izquierda->addStretch();
    boleto = new VistaBoleto(juego);
    fila->addLayout(izquierda);
    fila->addWidget(boleto, 1);
    caja->addLayout(fila);
    caja->addLayout(CrearImpresion());
    AceptarFicheros(
        *this, false, [this] { return !ocupada; },
        [this](const auto& rutas) { Trabajar([&] { logica.Cargar(rutas.front()); }); });
    HabilitarCopia(*this, [this] { return logica.TextoTabla(); });
    Pintar();
    AjustarTamanio(*this);
}

QWidget* frmVisualizar::CrearTabla() {
    auto* papel = new QFrame;
    papel->setFrameStyle(QFrame::StyledPanel);
    auto* rejilla = new QGridLayout(papel);
    rejilla->setHorizontalSpacing(2 * Paso);
    const int filas = logica.ApuestasPorBoleto();
    const QFontMetrics medida = papel->fontMetrics();
    for (int r = 0; r < filas; ++r) {
        rejilla->addWidget(new QLabel(QString::number(r + 1) + Q(".")), r + 1, 0, Qt::AlignRight);
        for (int c = 0; c < 7; ++c) {
            auto* celda = new QLabel;
            celda->setAlignment(Qt::AlignCenter);
            celda->setMinimumSize(medida.horizontalAdvance(Q("000")), medida.height() + Paso / 2);
            QFont letra = celda->font();
            letra.setBold(c < 6);
            celda->setFont(letra);
            if (c < 6) {
                const auto i = static_cast<size_t>(r * 6 + c);
                celda->setObjectName(NombreIndexado("lblColumna", static_cast<int>(i)));
                lblColumna[i] = celda;
            } else {
                celda->setObjectName(NombreIndexado("lblReintegro", r));
                lblReintegro[static_cast<size_t>(r)] = celda;
            }
            rejilla->addWidget(celda, r + 1, c + 1);
        }
    }
    rejilla->addWidget(new QLabel(Q(logica.LetraDigito())), 0, 7, Qt::AlignCenter);
    return papel;
}

QHBoxLayout* frmVisualizar::CrearNavegacion() {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso / 2);
    const auto boton = [this, fila](std::string_view nombre, std::string_view texto, std::string_view ayuda,
                                    void (LogicaVisualizar::*orden)()) {
        QPushButton* b = CrearBoton(nombre, texto, ayuda, [this, orden] { (logica.*orden)(), Pintar(); });
        b->setAccessibleName(Q(ayuda));
        b->setFixedWidth(b->fontMetrics().horizontalAdvance(Q("◀◀◀")) + 12);
        fila->addWidget(b);
        return b;
    };
    imgPrimero = boton("imgPrimero", "|◀", "Boleto primero", &LogicaVisualizar::imgPrimero);
    imgRetroceder = boton("imgRetroceder", "◀", "Retroceder boleto", &LogicaVisualizar::imgRetroceder);
    imgAvanzar = boton("imgAvanzar", "▶", "Avanzar boleto", &LogicaVisualizar::imgAvanzar);
    imgUltimo = boton("imgUltimo", "▶|", "Boleto último", &LogicaVisualizar::imgUltimo);
    fila->addStretch();
    auto* etiqueta = new QLabel(Q("Ir al Boleto"));
    txtIrboleto = CrearCampoNumero(
        Q("txtIrboleto"), Q("Número del boleto; Intro lo muestra"),
        [this](const std::string& texto) { logica.txtIrboleto = texto; }, [] {});
    InstalarIntro(*txtIrboleto, [this](const std::string&) { logica.IrABoleto(), Pintar(); });
    etiqueta->setBuddy(txtIrboleto);
    fila->addWidget(etiqueta);
    fila->addWidget(txtIrboleto);
    return fila;
}

QHBoxLayout* frmVisualizar::CrearImpresion() {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(Paso);
    fila->setContentsMargins(0, Paso, 0, 0);
    lblNumeroBoleto = new QLabel;
    lblNumeroBoleto->setObjectName(Q("lblNumeroBoleto"));
    lblNumeroBoleto->setMinimumWidth(
        lblNumeroBoleto->fontMetrics().horizontalAdvance(Q("Boleto actual : 1747977/1747977")));
    const auto campo = [this](const char* nombre, const char* ayuda, std::string& texto) {
        return CrearCampoNumero(
            Q(nombre), Q(ayuda), [&texto](const std::string& t) { texto = t; }, [] {});
    };
    txtBoletoDESDE = campo("txtBoletoDESDE", "Primer boleto que se imprime", logica.txtBoletoDESDE);
    txtBoletoHASTA = campo("txtBoletoHASTA", "Último boleto que se imprime", logica.txtBoletoHASTA);
    cmdImprimir = CrearBoton("cmdImprimir", "Imprimir", "Imprime los boletos, dos por página",
                             [this] { Trabajar([this] { Imprimir(); }); });
    cmdPdf = CrearBoton("cmdPdf", "Guardar PDF", "Guarda los boletos en un documento PDF, dos por página",
                        [this] { Trabajar([this] { Exportar(); }); });
    imgVolver = CrearBoton("imgVolver", "Cerrar", "Cerrar la ventana", [this] { reject(); });
    fila->addWidget(lblNumeroBoleto);
    fila->addStretch();
    fila->addWidget(new QLabel(Q("Boletos del")));
    fila->addWidget(txtBoletoDESDE);
    fila->addWidget(new QLabel(Q("al")));
    fila->addWidget(txtBoletoHASTA);
    fila->addWidget(cmdImprimir);
    fila->addWidget(cmdPdf);
    fila->addSpacing(2 * Paso);
    fila->addWidget(imgVolver);
    return fila;
}

void frmVisualizar::Trabajar(const std::function<void()>& accion) {
    {
        const Mientras trabajando(ocupada);
        Pintar();
        accion();
    }
    Pintar();
}

void frmVisualizar::Imprimir() {
    int32_t desde = 0, hasta = 0;
    if (!logica.BoletosParaImprimir(desde, hasta)) return;
    QPrinter impresora(QPrinter::HighResolution);
    QPrintDialog dialogo(&impresora, this);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialogo.exec() != QDialog::Accepted) return;
    if (!DibujarBoletos(impresora, logica, desde, hasta))
        Fallo(logica.entorno, "ERROR: No se ha podido imprimir en " + Utf8(impresora.printerName()));
}

void frmVisualizar::Exportar() {
    int32_t desde = 0, hasta = 0;
    if (!logica.BoletosParaImprimir(desde, hasta)) return;
    const std::string ruta = logica.PedirRutaPdf();
    if (!ruta.empty()) ExportarPdf(ruta, logica, desde, hasta);
}

void frmVisualizar::Pintar() {
    PintarFilaFichero(fichero, logica.txtFicheroASCII, logica.lblApuestas + " Apuestas");
    chkReintegros->setChecked(logica.chkReintegros);
    for (size_t i = 0; i < lblColumna.size(); ++i)
        if (lblColumna[i] != nullptr) lblColumna[i]->setText(Q(logica.lblColumna[i]));
    for (size_t r = 0; r < lblReintegro.size(); ++r)
        if (lblReintegro[r] != nullptr) lblReintegro[r]->setText(Q(logica.lblReintegro[r]));
    boleto->Mostrar(logica.ApuestasDeBoleto(logica.BoletoActual));
    lblNumeroBoleto->setText(Q(logica.lblNumeroBoleto()));
    PintarCampo(*txtBoletoDESDE, logica.txtBoletoDESDE);
    PintarCampo(*txtBoletoHASTA, logica.txtBoletoHASTA);
    PintarCampo(*txtIrboleto, logica.txtIrboleto);
    imgPrimero->setEnabled(!ocupada && logica.PuedeRetroceder());
    imgRetroceder->setEnabled(!ocupada && logica.PuedeRetroceder());
    imgAvanzar->setEnabled(!ocupada && logica.PuedeAvanzar());
    imgUltimo->setEnabled(!ocupada && logica.PuedeAvanzar());
    for (QWidget* w :
         {static_cast<QWidget*>(txtIrboleto), static_cast<QWidget*>(txtBoletoDESDE),
          static_cast<QWidget*>(txtBoletoHASTA), static_cast<QWidget*>(cmdImprimir), static_cast<QWidget*>(cmdPdf)})
        w->setEnabled(!ocupada && logica.Navegable);
    fichero.boton->setEnabled(!ocupada);
    chkReintegros->setEnabled(!ocupada);
    imgVolver->setEnabled(!ocupada);
}

void frmVisualizar::reject() {
    if (!ocupada) QDialog::reject();
}
