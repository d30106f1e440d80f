// Base files in tests: one opened from a text, and working states filled at random.
#pragma once

#include <random>

#include "Guion.h"
#include "Sesiones.h"
#include "modXML.h"

/// A piece of work that opens the base files that the test writes.
struct Base : Guion {
    bool Abrir(const std::string& texto, const std::string& nombre = "base.xml") {
        EscribirTodo(carpeta.Ruta(nombre), texto);
        return AbrirFicheroBase(carpeta.Ruta(nombre), sesion, entorno);
    }
    std::string Texto() { return GenerarXMLBase(sesion, entorno); }
    bool Tiene(const std::string& linea) { return Texto().find(linea + "\r\n") != std::string::npos; }

    CarpetaTemporal carpeta;
};

/// Fills everything that a base file keeps with values that it gives back as they are.
class Relleno {
  public:
    explicit Relleno(uint32_t semilla) : azar_(semilla) {}

    template <class Entero>
    void Poner(Entero& destino, int hasta) {
        destino = static_cast<Entero>(azar_() % static_cast<unsigned>(hasta + 1));
    }
    template <class Marcas>
    void Marcar(Marcas& marcas, size_t primero = 0) {
        for (size_t i = primero; i < marcas.size(); ++i) marcas[i] = azar_() % 3 == 0;
    }
    void Poner(Intervalo& intervalo) {
        Poner(intervalo.Minimo, 300);
        Poner(intervalo.Maximo, 32767);
    }
    bool Moneda() { return azar_() % 2 == 0; }

    void Llenar(Sesion& sesion);

  private:
    void LlenarTablas(Condiciones& c);
    void LlenarGrupos(Condiciones& c);
    void LlenarValores(Condiciones& c);

    std::mt19937 azar_;
};

inline void Relleno::LlenarTablas(Condiciones& c) {
    Marcar(c.ALTOSBAJOS.Bajos);
    Marcar(c.ALTOSBAJOS.Altos);
    for (auto& tabla : c.DECENAS.Decena) Marcar(tabla);
    Marcar(c.DECENAS.FigurasDecenas);
    Marcar(c.HOMOLOGOS.HomologosAcertados, 1);
    Marcar(c.PARESIMPARES.ParesActivos);
    Marcar(c.SEGUIDOS.NumerosSeguidos, 1);
    for (auto& figura : c.SEGUIDOS.FigurasSeguidos) Poner(figura, 255);
    for (auto& tabla : c.TERMINACIONES.TerminadosEn) Marcar(tabla);
    Marcar(c.TERMINACIONES.FigurasTerminaciones);
    for (auto& bola : c.POSICIONES.Bola) Marcar(bola, 1);
    Marcar(c.EXTERIORESINTERIORES.ExterioresInterioresActivos);
    Marcar(c.SUPERIORESINFERIORES.SuperioresInferioresActivos);
    Marcar(c.COLINDANTES.ColindantesAcertados);
    Marcar(c.COEFICIENTERENTABILIDAD.RangosCR);
}

inline void Relleno::LlenarGrupos(Condiciones& c) {
    for (auto& grupo : c.GRUPOS.grupo) {
        if (Moneda()) continue;
        Marcar(grupo.numeros, 1);
        Marcar(grupo.aciertos);
        for (auto& posicion : grupo.posiciones) Poner(posicion, 1);
    }
    // Without gaps: what a file does with them is a test of its own.
    for (size_t g = 0; g < RegistroGRUPOSRELACIONADOS::Grupos; ++g)
        for (size_t s = 0; s < 6 && Moneda(); ++s) {
            Marcar(c.GRUPOSRELACIONADOS.subgrupos[g * 6 + s], 1);
            c.GRUPOSRELACIONADOS.subgrupos[g * 6 + s][s + 1] = 1;
            Marcar(c.GRUPOSRELACIONADOS.condiciones[g * 6 + s]);
        }
    for (auto& grupo : c.GRUPOSENTRELIMITES.grupo) {
        if (Moneda()) continue;
        Marcar(grupo.numeros, 1);
        Marcar(grupo.aciertos);
    }
    Poner(c.GRUPOSENTRELIMITES.aciertosMinimoGRUPOSENTRELIMITES, 210);
    Poner(c.GRUPOSENTRELIMITES.aciertosMaximoGRUPOSENTRELIMITES, 1000000);
}

inline void Relleno::LlenarValores(Condiciones& c) {
    for (auto& distancia : c.DISTANCIAS.Distancia) Poner(distancia);
    for (auto& intervalo : c.SUMAS.intervalos) Poner(intervalo);
    for (auto& intervalo : c.SUMASPORTRIOS.intervalosT1) Poner(intervalo);
    for (auto& intervalo : c.SUMASPORTRIOS.intervalosT2) Poner(intervalo);
    Poner(c.TERMINACIONES.SumaMinima, 255);
    Poner(c.TERMINACIONES.SumaMaxima, 255);
    for (auto& bloque : c.SORTEOSANTERIORES.grupo) {
        if (Moneda()) continue;
        bloque.acertarEN[3] = 1;
        Poner(bloque.DESDE.anio, 32767);
        Poner(bloque.DESDE.numero, 2000);
        Poner(bloque.HASTA.anio, 32767);
        Poner(bloque.HASTA.numero, 2000);
        Poner(bloque.sorteoDIAS, 6);
        Poner(bloque.aciertosMinimoSORTEOS, 2000000000);
        Poner(bloque.aciertosMaximoSORTEOS, 2000000000);
    }
    for (auto& grupo : c.VALORACIONES.grupo) {
        if (Moneda()) continue;
        Poner(grupo.intervalos[2]);
        grupo.intervalos[3].Maximo = 7;
        for (size_t n = 1; n < grupo.valoraciones.size(); ++n) Poner(grupo.valoraciones[n], 100);
    }
    for (size_t n = 1; n <= 49; ++n) {
        c.COEFICIENTERENTABILIDAD.PorcentajesApostados[n] = static_cast<double>(azar_() % 10000) / 100;
        c.COEFICIENTERENTABILIDAD.PorcentajesReales[n] = static_cast<double>(azar_()) / 7;
    }
}

inline void Relleno::Llenar(Sesion& sesion) {
    CambiarJuego(sesion, static_cast<int>(azar_() % 3));
    Marcar(sesion.trabajo.lblReintegro);
    for (int n = 1; n <= sesion.trabajo.NumeroMaximo(); ++n)
        sesion.trabajo.lblNumero[static_cast<size_t>(n)] = Moneda();
    Poner(sesion.trabajo.cboTipoReintegro, 2);
    for (auto& numero : sesion.referencia.CombinacionGanadora) Poner(numero, 49);
    Poner(sesion.referencia.Complementario, 49);
    LlenarTablas(sesion.condiciones);
    LlenarGrupos(sesion.condiciones);
    LlenarValores(sesion.condiciones);
    for (size_t k = 0; k < NFiltros; ++k) sesion.condiciones.lstFiltros[k].Activo = Moneda();
    AjustesReduccion& r = sesion.trabajo.Reduccion;
    Poner(r.TipoReduccion, 4);
    Poner(r.PorcentajeReduccion, 100);
    Poner(r.NApuestasExactas, 13983816);
    for (int16_t* bandera : {&r.ActivarNumeroApuestas, &r.ActivarCiclos, &r.Aleatorio, &r.ApuestasExactas})
        Poner(*bandera, 1);
}
