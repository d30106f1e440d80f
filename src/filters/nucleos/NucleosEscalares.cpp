// The scalar twins of the kernels.
#include <algorithm>
#include <cstdlib>

#include "Escalares.h"

namespace {

using Seis = SeisValores;

template <class Prueba>
int32_t Recorrer(const Tramo& tramo, const PorPosicion& tabla, Prueba pasa) {
    return RecorrerUnaAUna(tramo, [&](int64_t i) { return pasa(Valores(tramo, i, tabla)); });
}

template <class Valor>
void Escribir(const Tramo& tramo, const PorPosicion& tabla, Valor valor, uint8_t* respuestas) {
    EscribirUnaAUna(
        tramo, [&](int64_t i) { return valor(Valores(tramo, i, tabla)); }, respuestas);
}

int Suma(const Seis& v, size_t desde, size_t hasta) {
    int suma = 0;
    for (size_t r = desde; r < hasta; ++r) suma += v[r];
    return suma;
}

bool EnMapa(const MapaSumas& mapa, int suma) {
    return (mapa[static_cast<size_t>(suma / 8)] >> (suma % 8) & 1) != 0;
}

uint8_t RespuestaCuenta(const Seis& v, const TablasCuenta& t) {
    return t.Pasa[static_cast<size_t>(Suma(v, 0, 6) & 15)];
}

std::array<uint8_t, 10> ContarClases(const Seis& clases) {
    std::array<uint8_t, 10> cuenta{};
    for (const int c : clases) ++cuenta[static_cast<size_t>(c)];
    return cuenta;
}

uint8_t PorTamanos(const Seis& clases, const TablasClases& t) {
    const auto cuenta = ContarClases(clases);
    int codigo = 0;
    for (size_t c = 0; c < 10; ++c) codigo = std::min(codigo + t.Codigo[c][cuenta[c]], 255);
    return codigo < TablasClases::Rechazo ? t.Pasa[static_cast<size_t>(codigo & 15)] : uint8_t{0};
}

uint8_t RespuestaClases(const Seis& clases, const TablasClases& t) {
    return PorTamanos(clases, t) & t.SumaPasa[static_cast<size_t>(Suma(clases, 0, 6))];
}

int Distancia(const Seis& n, size_t k) {
    return k < 5 ? n[k + 1] - n[k] : n[5] - n[0];
}

uint8_t RespuestaSeguidos(const Seis& n, const TablasSeguidos& t) {
    size_t patron = 0;
    for (size_t k = 0; k < 5; ++k) patron |= static_cast<size_t>(n[k + 1] == n[k] + 1) << k;
    return t.Pasa[patron];
}

uint8_t RespuestaColindantes(const Seis& celdas, const TablasColindantes& t) {
    const auto toca = [&](int a, int b) {
        const auto diferencia = static_cast<size_t>(std::abs(a - b));
        return diferencia < t.Toca.size() && t.Toca[diferencia] != 0;
    };
    const auto cuenta = std::count_if(celdas.begin(), celdas.end(), [&](int a) {
        return std::any_of(celdas.begin(), celdas.end(), [&](int b) { return toca(a, b); });
    });
    return t.Pasa[static_cast<size_t>(cuenta)];
}

} // namespace

int32_t NucleoCuentaEscalar(const Tramo& tramo, const TablasCuenta& t) {
    return Recorrer(tramo, t.Valor, [&](const Seis& v) { return RespuestaCuenta(v, t) != 0; });
}

void RespuestasCuentaEscalar(const Tramo& tramo, const TablasCuenta& t, uint8_t* respuestas) {
    Escribir(
        tramo, t.Valor, [&](const Seis& v) { return RespuestaCuenta(v, t); }, respuestas);
}

int32_t NucleoClasesEscalar(const Tramo& tramo, const TablasClases& t) {
    return Recorrer(tramo, t.Clase, [&](const Seis& clases) { return RespuestaClases(clases, t) != 0; });
}

void RespuestasClasesEscalar(const Tramo& tramo, const TablasClases& t, uint8_t* respuestas) {
    Escribir(
        tramo, t.Clase, [&](const Seis& clases) { return RespuestaClases(clases, t); }, respuestas);
}

void FilasClasesEscalar(const Tramo& tramo, const TablasClases& t, const FilasDeClases& filas) {
    Escribir(
        tramo, t.Clase, [&](const Seis& clases) { return PorTamanos(clases, t); }, filas[0]);
    Escribir(
        tramo, t.Clase, [&](const Seis& clases) { return Suma(clases, 0, 6); }, filas[1]);
    for (size_t p = 0; p < 5; ++p) {
        const auto par = [&](const Seis& clases) {
            const auto cuenta = ContarClases(clases);
            return cuenta[2 * p] | cuenta[2 * p + 1] << 4;
        };
        Escribir(tramo, t.Clase, par, filas[2 + p]);
    }
}

int32_t NucleoSumasEscalar(const Tramo& tramo, const TablasSumas& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) { return EnMapa(t.Mapa, Suma(n, 0, 6)); });
}

void FilasSumaEscalar(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    Escribir(
        tramo, numero, [](const Seis& n) { return Suma(n, 0, 6) / 2; }, filas[0]);
    Escribir(
        tramo, numero, [](const Seis& n) { return Suma(n, 0, 6) % 2; }, filas[1]);
}

int32_t NucleoTriosEscalar(const Tramo& tramo, const TablasTrios& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) {
        return EnMapa(t.Primeros, Suma(n, 0, 3)) && EnMapa(t.Ultimos, Suma(n, 3, 6));
    });
}

void FilasTriosEscalar(const Tramo& tramo, const PorPosicion& numero, const Filas<2>& filas) {
    Escribir(
        tramo, numero, [](const Seis& n) { return Suma(n, 0, 3); }, filas[0]);
    Escribir(
        tramo, numero, [](const Seis& n) { return Suma(n, 3, 6); }, filas[1]);
}

int32_t NucleoDistanciasEscalar(const Tramo& tramo, const TablasDistancias& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) {
        for (size_t k = 0; k < 6; ++k) {
            const int distancia = Distancia(n, k) - t.Minimo[k];
            if (distancia < 0 || distancia > t.Ancho[k]) return false;
        }
        return true;
    });
}

void FilasDistanciasEscalar(const Tramo& tramo, const PorPosicion& numero, int8_t minimo, const Filas<6>& filas) {
    for (size_t k = 0; k < 5; ++k)
        Escribir(
            tramo, numero, [&](const Seis& n) { return Distancia(n, k) - minimo; }, filas[k]);
    Escribir(
        tramo, numero, [&](const Seis& n) { return n[4] - n[0] - minimo; }, filas[5]);
}

int32_t NucleoSeguidosEscalar(const Tramo& tramo, const TablasSeguidos& t) {
    return Recorrer(tramo, t.Numero, [&](const Seis& n) { return RespuestaSeguidos(n, t) != 0; });
}

void RespuestasSeguidosEscalar(const Tramo& tramo, const TablasSeguidos& t, uint8_t* respuestas) {
    Escribir(
        tramo, t.Numero, [&](const Seis& n) { return RespuestaSeguidos(n, t); }, respuestas);
}

int32_t NucleoColindantesEscalar(const Tramo& tramo, const TablasColindantes& t) {
    return Recorrer(tramo, t.Celda, [&](const Seis& celdas) { return RespuestaColindantes(celdas, t) != 0; });
}

void RespuestasColindantesEscalar(const Tramo& tramo, const TablasColindantes& t, uint8_t* respuestas) {
    Escribir(
        tramo, t.Celda, [&](const Seis& celdas) { return RespuestaColindantes(celdas, t); }, respuestas);
}
