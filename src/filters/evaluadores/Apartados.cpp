#include "Apartados.h"

#include <algorithm>

#include "Figuras.h"

Cuentas PorBaja(const CuentaPalabras& cuenta, size_t valores) {
    Cuentas cuentas(valores);
    for (size_t v = 0; v < CuentaPalabras::Valores; ++v)
        if (v % 256 < valores) cuentas[v % 256].Sumar(cuenta.De(v));
    return cuentas;
}

Cuentas PorAlta(const CuentaPalabras& cuenta, size_t valores) {
    Cuentas cuentas(valores);
    for (size_t v = 0; v < valores * 256; ++v) cuentas[v / 256].Sumar(cuenta.De(v));
    return cuentas;
}

ApartadoReparto Apartado(std::string nombre, const Cuentas& cuentas, int32_t primero) {
    ApartadoReparto apartado{std::move(nombre), {}};
    for (const CuentaValor& c : cuentas) {
        apartado.Barras.push_back({primero, std::to_string(primero), c.Apuestas, c.Pasan});
        ++primero;
    }
    return apartado;
}

ApartadoReparto ApartadoRecortado(std::string nombre, const Cuentas& cuentas, int32_t primero) {
    const auto conApuestas = [](const CuentaValor& c) { return c.Apuestas > 0; };
    const auto desde = std::find_if(cuentas.begin(), cuentas.end(), conApuestas);
    const auto hasta = std::find_if(cuentas.rbegin(), std::make_reverse_iterator(desde), conApuestas).base();
    return Apartado(std::move(nombre), Cuentas(desde, hasta), primero + static_cast<int32_t>(desde - cuentas.begin()));
}

ApartadoReparto ApartadoFiguras(const Cuentas& cuentas, size_t primera, size_t figuras) {
    const auto desde = cuentas.begin() + static_cast<std::ptrdiff_t>(primera);
    ApartadoReparto apartado = Apartado("Figuras", Cuentas(desde, desde + static_cast<std::ptrdiff_t>(figuras)));
    for (size_t f = 0; f < figuras; ++f) apartado.Barras[f].Etiqueta = NombresFiguras[primera + f];
    return apartado;
}
