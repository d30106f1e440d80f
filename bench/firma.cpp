// The deterministic signature: a fixed set of operations, one line for each with what it yielded and
// how long it took, and one number over all of them.
//
//     firma [expected]        compares with the number in that file; ends with 1 if they differ
//
// A change of the number means that some result changed. If that is what was wanted, the commit says
// so and brings the new number.
#include <array>
#include <chrono>
#include <fstream>
#include <string>

#include <fmt/format.h>

#include "AsignarReintegros.h"
#include "Boleto.h"
#include "CondicionesEjemplo.h"
#include "GenerarApuestas.h"
#include "Sesiones.h"
#include "Supervivientes.h"
#include "TablaFiltros.h"
#include "modCSN.h"

namespace {

constexpr std::array<int, 25> Base{1,  2,  3,  5,  8,  9,  10, 11, 13, 17, 19, 20, 21,
                                   24, 26, 28, 30, 31, 33, 37, 40, 41, 42, 47, 49};

class Huella { // FNV-1a
  public:
    void Byte(uint8_t b) { valor_ = (valor_ ^ b) * 0x100000001B3u; }
    void Entero(uint64_t n) {
        for (int i = 0; i < 64; i += 8) Byte(static_cast<uint8_t>(n >> i));
    }
    void Filas(const Tabla& tabla) {
        for (int r = 1; r <= tabla.Filas(); ++r)
            for (int64_t i = 1; i <= tabla.Apuestas(); ++i) Byte(tabla(r, i));
    }
    uint64_t Valor() const { return valor_; }

  private:
    uint64_t valor_ = 0xCBF29CE484222325u;
};

class Firma {
  public:
    Firma() {
        IniciarSesion(sesion_, entorno_);
        for (const int n : Base) sesion_.trabajo.lblNumero[static_cast<size_t>(n)] = true;
        for (const size_t d : {1, 3, 4, 8}) sesion_.trabajo.lblReintegro[d] = true;
        LeerBase(sesion_.trabajo);
        ElegirCondicionesEjemplo(sesion_.condiciones);
    }

    std::string Calcular() {
        Expansion();
        Filtros(false);
        Filtros(true);
        Traslados();
        Digitos();
        Secuencias();
        const std::string texto = fmt::format("{:016x}", total_.Valor());
        fmt::print("{:<36}{:>10}  {}\n", "total", "", texto);
        return texto;
    }

  private:
    // `hacer(huella)` returns a count; what it hashes is outside the time.
    template <class Hacer, class Mirar>
    void Linea(std::string_view nombre, Hacer hacer, Mirar mirar) {
        const auto antes = std::chrono::steady_clock::now();
        const int64_t cuenta = hacer();
        const std::chrono::duration<double, std::milli> tiempo = std::chrono::steady_clock::now() - antes;
        Huella huella;
        mirar(huella);
        fmt::print("{:<36}{:>10}  {:016x}{:>10.3f} ms\n", nombre, cuenta, huella.Valor(), tiempo.count());
        total_.Entero(static_cast<uint64_t>(cuenta));
        total_.Entero(huella.Valor());
    }

    void Expansion() {
        EstadoTrabajo& trabajo = sesion_.trabajo;
        const auto generar = [&] {
            GenerarApuestas(trabajo, entorno_, 6, 6);
            return trabajo.TablaApuestas.Apuestas();
        };
        Linea("expansion", generar, [&](Huella& huella) { huella.Filas(trabajo.TablaApuestas); });
        trabajo.ApuestasEnTabla = static_cast<int32_t>(trabajo.TablaApuestas.Apuestas());
        PrepararEliminadas(trabajo);
    }

    // The filters without blocks, each on all bets or one after the other.
    void Filtros(bool encadenados) {
        EstadoTrabajo& trabajo = sesion_.trabajo;
        PrepararEliminadas(trabajo);
        vivas_ = trabajo.ApuestasEnTabla;
        for (const int k : FiltrosEjemplo) {
            const DescripcionFiltro& filtro = TablaFiltros[static_cast<size_t>(k)];
            if (!encadenados) PrepararEliminadas(trabajo);
            const auto filtrar = [&] {
                const int32_t eliminadas = filtro.Filtrar(sesion_, entorno_);
                vivas_ -= eliminadas;
                return int64_t{eliminadas};
            };
            Linea((encadenados ? "chained " : "") + std::string(filtro.nombre), filtrar,
                  [&](Huella& huella) { huella.Filas(trabajo.ApuestaEliminada); });
        }
    }

    void Traslados() {
        EstadoTrabajo& trabajo = sesion_.trabajo;
        trabajo.Contador.Condicionadas = vivas_;
        const auto copiar = [&] {
            CopiarSupervivientes(trabajo);
            return trabajo.ApuestasCondicionadas.Apuestas();
        };
        Linea("survivors", copiar, [&](Huella& huella) { huella.Filas(trabajo.ApuestasCondicionadas); });
        const auto traducir = [&] {
            TraducirCondicionadas(trabajo);
            return trabajo.ApuestasReducidas.Apuestas();
        };
        Linea("numbers of the survivors", traducir, [&](Huella& huella) { huella.Filas(trabajo.ApuestasReducidas); });
        trabajo.Contador.Reducidas = trabajo.Contador.Condicionadas;
    }

    void Digitos() {
        EstadoTrabajo& trabajo = sesion_.trabajo;
        for (const int modo : {AlDirecto, Secuenciales, Aleatorios}) {
            trabajo.cboTipoReintegro = modo;
            const auto asignar = [&] {
                AsignarReintegros(trabajo);
                return int64_t{modo};
            };
            Linea("digits", asignar, [&](Huella& huella) { huella.Filas(trabajo.ApuestasReducidas); });
        }
    }

    void Secuencias() {
        const Tabla& tabla = sesion_.trabajo.ApuestasReducidas;
        Huella numeros, lugares;
        const auto numerar = [&] {
            for (int64_t i = 1; i <= tabla.Apuestas(); ++i) {
                std::array<uint8_t, 6> c;
                for (int r = 1; r <= 6; ++r) c[static_cast<size_t>(r - 1)] = tabla(r, i);
                numeros.Entero(static_cast<uint64_t>(CombinacionaCSN(6, NumeroMaximoBoleto, c.data())));
            }
            return tabla.Apuestas();
        };
        Linea("sequence numbers", numerar, [&](Huella& huella) { huella = numeros; });
        const auto combinar = [&] {
            int64_t cuantas = 0;
            for (int32_t csn = 1; csn <= ApuestasMaximas; csn += 997, ++cuantas) {
                std::array<uint8_t, 6> c;
                CSNaCombinacion(csn, 6, NumeroMaximoBoleto, c.data());
                for (const uint8_t n : c) lugares.Byte(n);
            }
            return cuantas;
        };
        Linea("combinations of sequence numbers", combinar, [&](Huella& huella) { huella = lugares; });
    }

    Sesion sesion_;
    Entorno entorno_;
    int32_t vivas_ = 0;
    Huella total_;
};

} // namespace

int main(int argc, char** argv) {
    const std::string total = Firma().Calcular();
    if (argc < 2) return 0;
    std::string esperada;
    std::ifstream(argv[1]) >> esperada;
    if (total == esperada) return 0;
    fmt::print("expected {}\n", esperada);
    return 1;
}
