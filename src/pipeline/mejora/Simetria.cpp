#include "Simetria.h"

#include <algorithm>
#include <numeric>

#include "Vecindad.h"

namespace {

Orbitas CadaUnaLaSuya(const Familia& familia) {
    Orbitas orbitas;
    orbitas.de.resize(familia.Cuantas());
    std::iota(orbitas.de.begin(), orbitas.de.end(), 0);
    orbitas.representante = orbitas.de;
    orbitas.tamanio.assign(familia.Cuantas(), 1);
    return orbitas;
}

} // namespace

uint64_t Imagen(const Permutacion& p, uint64_t mascara) {
    uint64_t imagen = 0;
    for (; mascara != 0; mascara &= mascara - 1) imagen |= uint64_t{1} << p[std::countr_zero(mascara)];
    return imagen;
}

bool HallarOrbitas(const Familia& familia, const Simetria& simetria, int32_t tope, Orbitas& orbitas,
                   const Vigia& vigia) {
    orbitas.de.assign(familia.Cuantas(), -1);
    orbitas.representante.clear();
    orbitas.tamanio.clear();
    std::vector<int32_t> cola;
    for (int32_t primera = 0; primera < familia.Cuantas(); ++primera) {
        if (orbitas.de[primera] >= 0) continue;
        const int32_t orbita = orbitas.Cuantas();
        if (orbita == tope) return false;
        orbitas.de[primera] = orbita;
        cola.assign(1, primera);
        for (size_t i = 0; i < cola.size(); ++i) {
            vigia.Contar(4 * static_cast<int64_t>(simetria.size()));
            for (const Permutacion& p : simetria) {
                const int32_t otra = familia.Lugar(Imagen(p, familia.Mascara(cola[i])));
                if (otra < 0 || familia.Veces(otra) != familia.Veces(primera)) return false;
                if (orbitas.de[otra] >= 0) continue;
                orbitas.de[otra] = orbita;
                cola.push_back(otra);
            }
        }
        orbitas.representante.push_back(primera);
        orbitas.tamanio.push_back(static_cast<int32_t>(cola.size()));
    }
    return true;
}

std::vector<int32_t> Expandir(const Orbitas& orbitas, const std::vector<int32_t>& elegidas) {
    std::vector<bool> elegida(orbitas.Cuantas());
    for (const int32_t orbita : elegidas) elegida[orbita] = true;
    std::vector<int32_t> miembros;
    for (size_t i = 0; i < orbitas.de.size(); ++i)
        if (elegida[orbitas.de[i]]) miembros.push_back(static_cast<int32_t>(i));
    return miembros;
}

bool RecubrimientoDeOrbitas(const Familia& filas, const Orbitas& deFilas, const Familia& columnas,
                            const Orbitas& deColumnas, int t, int64_t tope, Recubrimiento& problema,
                            const Vigia& vigia) {
    problema = {};
    problema.simetrico = &filas == &columnas;
    problema.coste = deColumnas.tamanio;
    const int64_t vecinas = TamanioVecindad(filas.n(), filas.k(), columnas.k(), t);
    problema.cubren.elementos.reserve(
        std::min(tope, deFilas.Cuantas() * std::min<int64_t>(vecinas, deColumnas.Cuantas())));
    std::vector<int32_t> visto(deColumnas.Cuantas(), -1);
    for (int32_t f = 0; f < deFilas.Cuantas(); ++f) {
        const int32_t primera = deFilas.representante[f];
        vigia.Contar(std::min<int64_t>(vecinas, columnas.Cuantas()));
        problema.peso.push_back(deFilas.tamanio[f] * filas.Veces(primera));
        problema.total += problema.peso.back();
        CadaVecina(columnas, filas.Mascara(primera), t, [&](int32_t vecina) {
            const int32_t columna = deColumnas.de[vecina];
            if (visto[columna] == f) return;
            visto[columna] = f;
            problema.cubren.elementos.push_back(columna);
        });
        problema.cubren.Cerrar();
        if (problema.cubren.Cuantas() > tope) return false;
    }
    if (!problema.simetrico) problema.cubiertas = problema.cubren.Traspuestas(problema.Columnas());
    problema.exigido = problema.total;
    return true;
}

bool RecubrimientoDirecto(const Familia& filas, const Familia& columnas, int t, int64_t tope, Recubrimiento& problema,
                          const Vigia& vigia) {
    const bool todas = filas.Completa() && columnas.Completa();
    if (filas.Cuantas() * (todas ? TamanioVecindad(filas.n(), filas.k(), columnas.k(), t) : 1) > tope) return false;
    const Orbitas deFilas = CadaUnaLaSuya(filas);
    return &filas == &columnas
               ? RecubrimientoDeOrbitas(filas, deFilas, filas, deFilas, t, tope, problema, vigia)
               : RecubrimientoDeOrbitas(filas, deFilas, columnas, CadaUnaLaSuya(columnas), t, tope, problema, vigia);
}
