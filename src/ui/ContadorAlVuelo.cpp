#include "ContadorAlVuelo.h"

#include "TextosAlVuelo.h"

// All that a count depends on.
struct ContadorAlVuelo::Mirada {
    explicit Mirada(const Sesion& sesion)
        : juego(sesion.trabajo.cboTipoJuego), modo(sesion.trabajo.cboTipoCombinacion),
          importacion(sesion.trabajo.Importacion), importadas(sesion.trabajo.NApuestasImportadas),
          marcas(sesion.trabajo.lblNumero), parametros(sesion.condiciones), sorteos(sesion.condiciones.SorteosFiltro) {
        for (size_t k = 0; k < NFiltros; ++k) activas[k] = sesion.condiciones.lstFiltros[k].Activo;
    }
    bool operator==(const Mirada&) const = default;

    int juego, modo;
    uint32_t importacion;
    int32_t importadas;
    std::array<bool, NumeroMaximoBoleto + 1> marcas;
    std::array<bool, NFiltros> activas{};
    Parametros parametros;
    Sorteos sorteos;
};

ContadorAlVuelo::ContadorAlVuelo(const Sesion& sesion, std::function<void()> alContar)
    : sesion_(sesion), alContar_(std::move(alContar)) {
    reloj_.setSingleShot(true);
    reloj_.setInterval(Espera);
    QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [this] { Contar(); });
}

ContadorAlVuelo::~ContadorAlVuelo() = default;

void ContadorAlVuelo::Mirar() {
    auto mirada = std::make_unique<Mirada>(sesion_);
    if (mirada_ && *mirada_ == *mirada) return;
    mirada_ = std::move(mirada);
    trabajo_.Abandonar();
    sinMemoria_ = false;
    alDia_ = !FaltaBase(sesion_.trabajo).empty();
    if (!alDia_) return reloj_.start();
    reloj_.stop();
    cuenta_.reset();
}

// The line first; what the other rows would cost comes after it.
void ContadorAlVuelo::Contar() {
    const auto sinMemoria = [this] {
        cuenta_.reset();
        sinMemoria_ = alDia_ = true;
        alContar_();
    };
    try {
        const std::shared_ptr<Sesion> aparte = ApartarBase(sesion_);
        trabajo_.Empezar(
            [this, aparte](Entorno& entorno, const TrabajoAparte::Publicar& publicar) {
                const auto mostrar = [&](const CuentaAlVuelo& cuenta) {
                    publicar([this, copia = std::make_shared<const CuentaAlVuelo>(cuenta)] {
                        cuenta_ = copia;
                        alDia_ = true;
                        alContar_();
                    });
                };
                ExpandirBase(*aparte, entorno);
                CuentaAlVuelo cuenta = ContarAlVuelo(*aparte, entorno);
                mostrar(cuenta);
                CostearInactivas(*aparte, entorno, cuenta);
                mostrar(cuenta);
            },
            sinMemoria);
    } catch (const std::bad_alloc&) {
        sinMemoria();
    }
}
