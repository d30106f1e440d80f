// The works of `Escenario` as Google Benchmark sees them. Only the work itself is timed.
#include <chrono>

#include <benchmark/benchmark.h>

#include "Escenario.h"

namespace {

template <class Preparar, class Hacer>
void Medir(benchmark::State& estado, Preparar preparar, Hacer hacer, int64_t esperado) {
    for (auto _ : estado) {
        preparar();
        const auto antes = std::chrono::steady_clock::now();
        const int64_t respuesta = hacer();
        const std::chrono::duration<double> tiempo = std::chrono::steady_clock::now() - antes;
        estado.SetIterationTime(tiempo.count());
        if (respuesta != esperado) estado.SkipWithError("wrong answer");
    }
    estado.SetItemsProcessed(estado.iterations() * ApuestasMaximas);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    Escenario escenario;
    const int64_t leido = escenario.LeerTabla(), llenado = escenario.LlenarMemoriaFresca();
    const auto anotar = [](const std::string& nombre, auto preparar, auto hacer, int64_t esperado) {
        benchmark::RegisterBenchmark(nombre.c_str(),
                                     [=](benchmark::State& estado) { Medir(estado, preparar, hacer, esperado); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    anotar(
        "leer la tabla", [] {}, [&] { return escenario.LeerTabla(); }, leido);
    anotar(
        "llenar memoria fresca", [&] { escenario.SoltarMemoria(); }, [&] { return escenario.LlenarMemoriaFresca(); },
        llenado);
    for (const Trabajo& trabajo : escenario.Trabajos())
        anotar(trabajo.nombre, trabajo.preparar, trabajo.hacer, trabajo.esperado);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
