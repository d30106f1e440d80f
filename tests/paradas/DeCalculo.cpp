// The calculation: conditions, the routes of the reduction, the search for a smaller system, counts on the fly.
#include <memory>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "AlVuelo.h"
#include "CalcularSistema.h"
#include "Huecos.h"
#include "Operaciones.h"
#include "TablaFiltros.h"

namespace {

void ActivarCinco(Mundo& m) {
    Condiciones& c = m.sesion.condiciones;
    c.PARESIMPARES.ParesActivos = c.ALTOSBAJOS.Bajos = {0, 0, 1, 1, 1, 0, 0};
    c.SUMAS.intervalos[0] = {60, 130};
    c.SEGUIDOS.NumerosSeguidos = {0, 1, 1, 0, 0, 0, 0};
    for (auto& digito : c.TERMINACIONES.TerminadosEn) digito = {1, 1, 1, 0, 0, 0, 0};
    for (const int k : {kPARESIMPARES, kALTOSBAJOS, kSUMAS, kSEGUIDOS, kTERMINACIONES})
        c.lstFiltros[static_cast<size_t>(k)].Activo = true;
}

Operacion CincoCondiciones(Mundo& m) {
    m.MarcarHasta(32);
    ActivarCinco(m);
    Sesion& s = m.sesion;
    return {[&m, &s] { CalcularSistema(s, m.entorno); },
            [&s] { return s.trabajo.Contador.Reducidas == 0 ? "" : Resumen(s.trabajo.ApuestasReducidas); }};
}

// What the process window does, from the marks on.
struct EnVentana {
    EnVentana(Mundo& mundo, double ciclos, int64_t mejora) : m(mundo), Ciclos(ciclos), Mejora(mejora) {}

    Mundo& m;
    double Ciclos;
    int64_t Mejora; ///< steps, 0 without
    LogicaVentanaProceso* Ventana = nullptr;
    std::vector<LogicaVentanaProceso::Hallazgo> Hallazgos{};

    void Correr() {
        Hallazgos.clear();
        m.entorno.MostrarVentanaProceso = [this](LogicaVentanaProceso& v) {
            Ventana = &v;
            v.TopeCiclos = Ciclos;
            v.Activar();
            v.TopeCiclos = 0;
            v.finesMejora.Pasos = Mejora;
            if (Mejora > 0 && v.imgMejorar && parada_ == 0) v.Mejorar();
            Hallazgos = v.Hallazgos;
            Ventana = nullptr;
        };
        parada_ = 0;
        CalcularSistema(m.sesion, m.entorno);
    }
    // The expansion before the window has no stop.
    void Parar() {
        if (Ventana == nullptr) throw std::bad_alloc();
        ++parada_;
        Ventana->Detener();
    }
    std::string Huella() const {
        std::string texto;
        for (const auto& h : Hallazgos) texto += fmt::format("{}:{}\n", h.Ciclo, h.Apuestas);
        return texto;
    }
    // The best system so far, with its guarantee, or none.
    void Comprobar() const {
        const EstadoTrabajo& t = m.sesion.trabajo;
        EXPECT_EQ(t.Contador.Reducidas, Hallazgos.empty() ? 0 : Hallazgos.back().Apuestas);
        if (Hallazgos.empty() || t.Reduccion.PorcentajeReduccion != 100) return;
        EXPECT_EQ(t.ApuestasReducidas.Apuestas(), t.Contador.Reducidas);
        std::vector<int32_t> huecos;
        HallarHuecos(
            t, t.ApuestasReducidas, 6 - t.Reduccion.TipoReduccion, [] { return true; }, huecos);
        EXPECT_EQ(huecos.size(), 0u);
    }

  private:
    int parada_ = 0;
};

Operacion EnLaVentana(Mundo& m, int numeros, int16_t tipo, double ciclos, int64_t mejora = 0) {
    m.MarcarHasta(numeros);
    AjustesReduccion& ajustes = m.sesion.trabajo.Reduccion;
    ajustes.TipoReduccion = tipo;
    if (tipo == 0) ajustes.PorcentajeReduccion = 60;
    m.sesion.condiciones.lstFiltros[FilaReduccion].Activo = true;
    const auto e = std::make_shared<EnVentana>(m, ciclos, mejora);
    return {[e] { e->Correr(); }, [e] { return e->Huella(); }, [e] { e->Parar(); }, [e] { e->Comprobar(); }};
}

// The search works inside a symmetry, by exchange and by splitting; all of it begins from one cycle.
Operacion MejorarAl4(Mundo& m) {
    return EnLaVentana(m, 14, 2, 1, 480);
}
Operacion MejorarAl3(Mundo& m) {
    return EnLaVentana(m, 12, 3, 1, 320);
}
Operacion MejorarCondicionado(Mundo& m) {
    m.sesion.condiciones.PARESIMPARES.ParesActivos = {0, 0, 1, 1, 1, 0, 0};
    m.sesion.condiciones.lstFiltros[kPARESIMPARES].Activo = true;
    return EnLaVentana(m, 13, 1, 1, 480);
}

// The exact count has no stop of its own.
Operacion NumeroExacto(Mundo& m) {
    AjustesReduccion& ajustes = m.sesion.trabajo.Reduccion;
    ajustes.ActivarNumeroApuestas = ajustes.ApuestasExactas = 1;
    ajustes.NApuestasExactas = 20000;
    Operacion operacion = EnLaVentana(m, 22, 3, 1);
    Sesion& s = m.sesion;
    operacion.parar = nullptr;
    operacion.comprobar = [&s] { EXPECT_LE(s.trabajo.Contador.Reducidas, s.trabajo.ApuestasReducidas.Apuestas()); };
    return operacion;
}

Operacion CuentaSobreLaMarcha(Mundo& m) {
    m.MarcarHasta(30);
    ActivarCinco(m);
    const std::shared_ptr<Sesion> aparte = ApartarBase(m.sesion);
    ExpandirBase(*aparte, m.entorno);
    const auto pasan = std::make_shared<int32_t>(0);
    Operacion operacion{[&m, aparte, pasan] {
                            *pasan = 0;
                            CuentaAlVuelo cuenta = ContarAlVuelo(*aparte, m.entorno);
                            CostearInactivas(*aparte, m.entorno, cuenta);
                            *pasan = cuenta.Pasan;
                        },
                        [pasan] { return *pasan == 0 ? "" : std::to_string(*pasan); }};
    operacion.escapa = true;
    return operacion;
}

// The table and its flags are as before, whatever the moment.
Operacion RepartoDeSumas(Mundo& m) {
    m.Calcular(30);
    ActivarCinco(m);
    EstadoTrabajo& t = m.sesion.trabajo;
    const std::string antes = Resumen(t.TablaApuestas) + Resumen(t.ApuestaEliminada);
    const auto reparto = std::make_shared<Reparto>();
    Operacion operacion{[&m, reparto] {
                            *reparto = {};
                            *reparto = RepartirFiltro(kSUMAS, m.sesion, m.entorno);
                        },
                        [reparto] { return reparto->Total == 0 ? "" : std::to_string(reparto->Pasan); }};
    operacion.comprobar = [&t, antes] { EXPECT_EQ(Resumen(t.TablaApuestas) + Resumen(t.ApuestaEliminada), antes); };
    operacion.escapa = true;
    return operacion;
}

} // namespace

const std::vector<CasoParada>& ParadasDeCalculo() {
    static const std::vector<CasoParada> casos{
        {"CincoCondiciones", CincoCondiciones},
        {"PorPorcentaje", [](Mundo& m) { return EnLaVentana(m, 16, 0, 3); }},
        {"Al5", [](Mundo& m) { return EnLaVentana(m, 18, 1, 3); }},
        {"Al4PorCobertura", [](Mundo& m) { return EnLaVentana(m, 16, 2, 3); }},
        {"Al4PorBarrido", [](Mundo& m) { return EnLaVentana(m, 24, 2, 3); }},
        {"Al3", [](Mundo& m) { return EnLaVentana(m, 24, 3, 5); }},
        {"Al2", [](Mundo& m) { return EnLaVentana(m, 26, 4, 5); }},
        {"MejorarAl4", MejorarAl4},
        {"MejorarAl3", MejorarAl3},
        {"MejorarCondicionado", MejorarCondicionado},
        {"NumeroExacto", NumeroExacto},
        {"CuentaSobreLaMarcha", CuentaSobreLaMarcha},
        {"RepartoDeSumas", RepartoDeSumas},
    };
    return casos;
}
