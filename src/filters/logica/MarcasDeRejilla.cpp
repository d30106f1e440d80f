#include "MarcasDeRejilla.h"

#include "NumerosTexto.h"

void MarcasDeRejilla::Pulsar(int numero) {
    if (numero < 1 || numero > NumeroMaximo()) return;
    uint8_t& marca = marcas[static_cast<size_t>(numero)];
    marca = marca != 1;
    marco.ActivarFiltro();
}

void MarcasDeRejilla::Pegar(Entorno& entorno, const std::string& texto) {
    PegarNumeros(entorno, texto, NumeroMaximo(), [this](int n) {
        marcas[static_cast<size_t>(n)] = 1;
        marco.ActivarFiltro();
    });
}

std::string MarcasDeRejilla::Copiar() const {
    std::vector<int> numeros;
    for (int n = 1; n <= NumeroMaximo(); ++n)
        if (marcas[static_cast<size_t>(n)] == 1) numeros.push_back(n);
    return TextoNumeros(numeros);
}

void MarcasDeRejilla::imgININumeros() {
    marcas.fill(0);
    marco.ActivarFiltro();
}
