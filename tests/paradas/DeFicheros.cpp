// What reads and writes files, and the ground that all operations stand on.
#include <memory>

#include <gtest/gtest.h>

#include "CalcularSistema.h"
#include "ComandosFichero.h"
#include "GuardarCombinacion.h"
#include "HistoriaInventada.h"
#include "ImportarCombinacion.h"
#include "LogicaEstadisticas.h"
#include "Operaciones.h"
#include "modEncriptarFichero.h"

Mundo::Mundo() {
    entorno.PedirAbrir = entorno.PedirGuardar = [this](const PeticionFichero&) { return salida; };
    entorno.CarpetaInformes = carpeta.Ruta();
    MarcarDigitos({3});
}

void Mundo::Calcular(int n) {
    MarcarHasta(n);
    if (!CalcularSistema(sesion, entorno)) throw std::runtime_error("CalcularSistema");
}

void Mundo::Aclarar(int64_t k) {
    EstadoTrabajo& t = sesion.trabajo;
    Tabla quedan(7, (t.ApuestasReducidas.Apuestas() + k - 1) / k);
    for (int64_t i = 1; i <= quedan.Apuestas(); ++i)
        for (int r = 1; r <= 7; ++r) quedan(r, i) = t.ApuestasReducidas(r, (i - 1) * k + 1);
    t.Contador.Reducidas = static_cast<int32_t>(quedan.Apuestas());
    t.ApuestasReducidas = std::move(quedan);
}

std::string Mundo::Fichero(const std::string& nombre, int64_t desde, int64_t k) {
    const Tabla& todas = sesion.trabajo.ApuestasReducidas;
    Tabla tabla(7, (todas.Apuestas() - desde) / k + 1);
    for (int64_t i = 1; i <= tabla.Apuestas(); ++i)
        for (int r = 1; r <= 7; ++r) tabla(r, i) = todas(r, desde + (i - 1) * k);
    const auto n = static_cast<int32_t>(tabla.Apuestas());
    if (!GuardarFicheroApuestas(carpeta.Ruta(nombre), "0", n, tabla, nullptr, entorno))
        throw std::runtime_error(nombre);
    return carpeta.Ruta(nombre);
}

std::string Resumen(const Tabla& tabla) {
    uint64_t suma = 14695981039346656037u;
    for (int r = 1; r <= tabla.Filas(); ++r)
        for (int64_t i = 0; i < tabla.Apuestas(); ++i) suma = (suma ^ tabla.Fila(r)[i]) * 1099511628211u;
    return std::to_string(tabla.Apuestas()) + "/" + std::to_string(suma);
}

namespace {

Operacion Guardar(Mundo& m) {
    m.Calcular(26);
    Sesion& s = m.sesion;
    return {[&m, &s] {
                s.trabajo.CombinacionGuardada = false;
                GuardarCombinacion(s, m.entorno);
            },
            [&s] { return s.trabajo.CombinacionGuardada ? "guardada" : ""; },
            {},
            [&m, &s] {
                EXPECT_FALSE(s.trabajo.CombinacionGuardada);
                EXPECT_EQ(m.Cajas.size(), 1u);
            }};
}

Operacion VerTexto(Mundo& m) {
    m.Calcular(30);
    return {[&m] { VerApuestas(m.sesion, m.entorno); }, [&m] { return m.Informes.empty() ? "" : m.Informes[0]; }};
}

Operacion Importar(Mundo& m, const std::string& ruta) {
    const auto importar = [&m, ruta] { ImportarFichero(ruta, m.sesion, m.entorno); };
    return {importar, [&m] {
                const EstadoTrabajo& t = m.sesion.trabajo;
                return t.NApuestasImportadas == 0 ? "" : Resumen(t.ApuestasImportadas) + Resumen(t.ApuestasReducidas);
            }};
}

Operacion ImportarTom(Mundo& m) {
    m.Calcular(26);
    return Importar(m, m.Fichero("entrada.TOM", 1, 1));
}

Operacion ImportarTexto(Mundo& m) {
    m.Calcular(26);
    m.Aclarar(3);
    m.sesion.trabajo.chkReintegros = false;
    std::string texto;
    for (const Apuesta& apuesta : Apuestas(m.sesion.trabajo.ApuestasReducidas)) {
        for (const int n : apuesta) texto += (n < 10 ? "0" : "") + std::to_string(n);
        texto += "\r\n";
    }
    EscribirTodo(m.carpeta.Ruta("entrada.txt"), texto + texto); // every bet twice
    return Importar(m, m.carpeta.Ruta("entrada.txt"));
}

Operacion Estadisticas(Mundo& m) {
    const std::string ruta = m.carpeta.Ruta("entrada.txt");
    EscribirTodo(ruta, TextoFicheroSorteos(SorteosInventados(PRIMITIVA, 60000)));
    const auto l = std::make_shared<LogicaEstadisticas>(m.sesion.trabajo, m.entorno);
    return {[l, ruta] {
                l->txtTemporadaHASTA = "32767";
                if (l->CargarFicheroSorteos(ruta)) l->cmdConsultar();
            },
            [l] { return l->SorteosCargados.empty() ? "" : l->lblSorteosCargados + "\n" + l->txtDatos; },
            {},
            [l] {
                EXPECT_EQ(l->lblSorteosCargados, "0");
                EXPECT_EQ(l->lblTemporadaDESDE, "-");
            }};
}

} // namespace

const std::vector<CasoParada>& ParadasDeFicheros() {
    static const std::vector<CasoParada> casos{{"Guardar", Guardar},
                                               {"VerTexto", VerTexto},
                                               {"ImportarTom", ImportarTom},
                                               {"ImportarTexto", ImportarTexto},
                                               {"Estadisticas", Estadisticas}};
    return casos;
}
