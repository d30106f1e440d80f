#include "ImprimirBoletos.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include "BoletoImpreso.h"
#include "FicheroAtomico.h"
#include "Ficheros.h"
#include "TextoQt.h"

namespace {

constexpr int BoletosPorPagina = 2;
constexpr double Pie = 0.03; ///< part of the page's height under a ticket, for its number

void DibujarPie(QPainter& pintor, const QRectF& donde, const LogicaVisualizar& visor, int32_t boleto) {
    QFont letra = pintor.font();
    letra.setPixelSize(std::max(1, static_cast<int>(donde.height() * 0.5)));
    letra.setBold(false);
    pintor.setFont(letra);
    pintor.setPen(Qt::black);
    pintor.drawText(donde, Qt::AlignLeft | Qt::AlignVCenter,
                    Q(visor.trabajo.TipoJuego()) + Q("   boleto ") + QString::number(boleto) + Q(" de ") +
                        QString::number(visor.Boletos()));
}

} // namespace

bool DibujarBoletos(QPagedPaintDevice& papel, const LogicaVisualizar& visor, int32_t desde, int32_t hasta) {
    QPainter pintor;
    if (!pintor.begin(&papel)) return false;
    const QRectF pagina(0, 0, papel.width(), papel.height());
    const double alto = pagina.height() / BoletosPorPagina, pie = pagina.height() * Pie;
    for (int32_t t = desde; t <= hasta; ++t) {
        const int lugar = (t - desde) % BoletosPorPagina;
        if (lugar == 0 && t != desde && !papel.newPage()) return false;
        const QRectF hueco(0, lugar * alto, pagina.width(), alto - pie);
        DibujarBoleto(pintor, hueco.adjusted(0, 0, 0, -pie), visor.ApuestasDeBoleto(t), visor.trabajo.JuegoActual());
        DibujarPie(pintor, QRectF(0, hueco.bottom() - pie, pagina.width(), pie), visor, t);
        visor.entorno.CederTurno();
    }
    return pintor.end();
}

bool ExportarPdf(const std::string& ruta, LogicaVisualizar& visor, int32_t desde, int32_t hasta) {
    QByteArray documento;
    {
        QBuffer buffer(&documento);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter escritor(&buffer);
        escritor.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(12, 12, 12, 12),
                                           QPageLayout::Millimeter));
        escritor.setResolution(300);
        escritor.setTitle(Q("Boletos de ") + Q(NombreSinCarpeta(visor.txtFicheroASCII)));
        if (!DibujarBoletos(escritor, visor, desde, hasta))
            return FalloAlGuardar(visor.entorno, "no se puede dibujar el documento");
    }
    FicheroAtomico fichero;
    if (fichero.Abrir(ruta) && fichero.Escribir({documento.constData(), static_cast<size_t>(documento.size())}) &&
        fichero.Confirmar())
        return true;
    return FalloAlGuardar(visor.entorno, fichero.Fallo());
}
