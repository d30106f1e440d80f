#include "PanelReparto.h"

#include <QVBoxLayout>

#include <new>

#include "AlVuelo.h"
#include "FiltrosSencillos.h"
#include "Lista.h"
#include "MarcoFiltro.h"
#include "Supervivientes.h"
#include "TextoQt.h"
#include "TextosAlVuelo.h"
#include "modGeneral.h"

namespace {

// With more values than this, neighbours share a bar, so that each can be seen and pointed at.
constexpr size_t BarrasMaximas = 128;

constexpr int AltoMinimo = 96;

QLabel* CrearLinea(const char* nombre) {
    auto* linea = new QLabel;
    linea->setObjectName(Q(nombre));
    linea->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // The widest figures fit from the start, so that the dialog does not grow when they come.
    linea->setMinimumWidth(linea->fontMetrics().horizontalAdvance(Q("Con las otras activas: 13.983.816 (100,00 %)")) +
                           Paso);
    return linea;
}

bool SonIguales(const Condiciones& a, const Condiciones& b) {
    return static_cast<const Parametros&>(a) == b && a.SorteosFiltro == b.SorteosFiltro;
}

Barra BarraDe(const std::vector<BarraReparto>& valores, size_t desde, size_t hasta, int32_t total,
              const Entorno& entorno) {
    Barra barra;
    barra.fuerte = false;
    for (size_t i = desde; i < hasta; ++i) {
        barra.valor += valores[i].Apuestas;
        barra.parte += valores[i].Pasan;
    }
    barra.etiqueta = Q(valores[desde].Etiqueta);
    if (hasta - desde > 1) barra.etiqueta += Q("-") + Q(valores[hasta - 1].Etiqueta);
    barra.lectura = barra.etiqueta + Q(": ") + Q(FormatoMiles(barra.valor, entorno.SeparadorMiles)) +
                    Q(barra.valor == 1 ? " apuesta (" : " apuestas (") +
                    Q(TextoTantoPorCiento(barra.valor, total, entorno.SeparadorDecimal)) + Q("), pasan ") +
                    Q(FormatoMiles(barra.parte, entorno.SeparadorMiles));
    return barra;
}

} // namespace

// What the tasks of one panel share.
struct PanelReparto::Base {
    std::unique_ptr<Sesion> aparte;
    Tabla conOtras; ///< dead by the other active conditions
};

PanelReparto::PanelReparto(PeticionReparto peticion) : peticion_(std::move(peticion)), base_(std::make_shared<Base>()) {
    setObjectName(Q("panelReparto"));
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Paso / 2);
    cboApartado = CrearLista("cboApartado", "Qué reparto se ve");
    cboApartado->hide();
    connect(cboApartado, &QComboBox::activated, this, [this] { MostrarApartado(); });
    grafico = new GraficoBarras(Q("graficoReparto"), Q("Reparto de las apuestas de la base"), peticion_.entorno);
    grafico->setToolTip(Q("Cuántas apuestas de la base hay de cada valor y, en fuerte, las que pasan"));
    grafico->setMinimumHeight(AltoMinimo);
    grafico->ProponerFichero("reparto.png");
    if (peticion_.AlPulsar) grafico->AlPulsar([this](size_t barra) { Pulsar(barra); });
    lblPasan = CrearLinea("lblPasan");
    lblPasanJuntas = CrearLinea("lblPasanJuntas");
    auto* pie = new QBoxLayout(peticion_.Apaisado ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    pie->setSpacing(peticion_.Apaisado ? 2 * Paso : Paso / 2);
    (peticion_.Apaisado ? pie : columna)->addWidget(cboApartado);
    columna->addWidget(grafico, 1);
    columna->addLayout(pie);
    pie->addWidget(lblPasan);
    pie->addWidget(lblPasanJuntas);
    if (peticion_.Apaisado) pie->addStretch();
}

PanelReparto::~PanelReparto() = default;

void PanelReparto::Actualizar() {
    auto condiciones = std::make_unique<Condiciones>(peticion_.sesion.condiciones);
    peticion_.Volcar(*condiciones);
    if (contadas_ && SonIguales(*contadas_, *condiciones)) return;
    contadas_ = std::move(condiciones);
    const std::string falta = FaltaBase(peticion_.sesion.trabajo);
    if (!falta.empty()) {
        lblPasan->setText(Q("Aún no hay apuestas: " + falta));
        return;
    }
    const auto sinMemoria = [this] { lblPasan->setText(Q("No hay memoria suficiente para contar")); };
    try {
        if (!base_->aparte) base_->aparte = ApartarBase(peticion_.sesion);
    } catch (const std::bad_alloc&) {
        return sinMemoria();
    }
    if (reparto_.Apartados.empty()) lblPasan->setText(Q("Contando..."));
    trabajo_.Empezar(
        [this, base = base_, ahora = *contadas_, k = peticion_.k](Entorno& entorno,
                                                                  const TrabajoAparte::Publicar& publicar) {
            Sesion& aparte = *base->aparte;
            ExpandirBase(aparte, entorno);
            if (base->conOtras.Filas() == 0) EliminarConOtras(aparte, entorno, k, base->conOtras);
            aparte.condiciones = ahora;
            PrepararEliminadas(aparte.trabajo); // a count that was abandoned leaves its marks
            const Reparto reparto = RepartirFiltro(k, aparte, entorno);
            const int32_t juntas = PasanTambien(aparte, entorno, k, base->conOtras);
            publicar([this, reparto, juntas] { Mostrar(reparto, juntas); });
        },
        sinMemoria);
}

void PanelReparto::Mostrar(const Reparto& reparto, int32_t juntas) {
    reparto_ = reparto;
    lblPasan->setText(Q(TextoPasan(reparto.Pasan, reparto.Total, peticion_.entorno)));
    lblPasanJuntas->setText(Q(TextoPasanJuntas(juntas, reparto.Total, peticion_.entorno)));
    const int elegido = cboApartado->currentIndex();
    cboApartado->clear();
    for (const ApartadoReparto& apartado : reparto.Apartados) cboApartado->addItem(Q(apartado.Nombre));
    if (elegido >= 0 && elegido < cboApartado->count()) cboApartado->setCurrentIndex(elegido);
    cboApartado->setVisible(reparto.Apartados.size() > 1);
    MostrarApartado();
}

void PanelReparto::MostrarApartado() {
    const auto apartado = static_cast<size_t>(cboApartado->currentIndex());
    if (apartado >= reparto_.Apartados.size()) return;
    const auto& valores = reparto_.Apartados[apartado].Barras;
    porBarra_ = (valores.size() + BarrasMaximas - 1) / BarrasMaximas;
    Barras datos{.titulo = Q(reparto_.Apartados[apartado].Nombre), .una = {}, .varias = {}, .barras = {}};
    for (size_t i = 0; i < valores.size(); i += porBarra_)
        datos.barras.push_back(
            BarraDe(valores, i, std::min(i + porBarra_, valores.size()), reparto_.Total, peticion_.entorno));
    grafico->Poner(std::move(datos));
}

void PanelReparto::Pulsar(size_t barra) {
    const auto apartado = static_cast<size_t>(cboApartado->currentIndex());
    if (porBarra_ == 1 && apartado < reparto_.Apartados.size())
        peticion_.AlPulsar(apartado, reparto_.Apartados[apartado].Barras[barra].Valor);
}
