// Every long operation stopped a hundred times, each at a random moment of its run: nothing is left locked, what
// stands is the beginning of what a whole run gives, no file is half written, memory comes back and the next
// run is right.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <new>
#include <random>

#include <gtest/gtest.h>

#include <malloc.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "GuardarCombinacion.h"
#include "Operaciones.h"
#include "modEncriptarFichero.h"

namespace {

constexpr int Veces = 100, EntreEnteras = 10;
constexpr int64_t TurnosParaAcabar = 6; // "Todas" ends each of its parts at a turn of its own
constexpr int64_t MargenMemoria = 8 << 20;
constexpr const char* Antes = "antes";

int64_t MemoriaResidente() {
    malloc_trim(0);
    int64_t total = 0, residente = 0;
    std::ifstream("/proc/self/statm") >> total >> residente;
    return residente * sysconf(_SC_PAGESIZE);
}

// The files of the folder with their sizes.
Textos Ficheros(const std::string& carpeta) {
    Textos lista;
    for (const auto& entrada : std::filesystem::directory_iterator(carpeta))
        lista.push_back(entrada.path().filename().string() + " " + std::to_string(entrada.file_size()));
    std::sort(lista.begin(), lista.end());
    return lista;
}

Textos Lineas(const std::string& texto) {
    Textos lineas;
    for (size_t desde = 0, fin; desde < texto.size(); desde = fin + 1) {
        fin = std::min(texto.find('\n', desde), texto.size());
        lineas.push_back(texto.substr(desde, fin - desde));
    }
    return lineas;
}

class DeOperacion : public testing::TestWithParam<CasoParada> {
  protected:
    Mundo mundo;
    Operacion operacion;
    std::mt19937 azar{20240517};
    std::vector<double> momentos; // of each turn of a whole run, in seconds from its start
    double duracion = 0;
    int64_t turno = 0, turnoDeParada = 0;
    std::string entera;
    Textos ficheros;

    static double Ahora() {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    void SetUp() override {
        operacion = GetParam().crear(mundo);
        mundo.entorno.CederTurno = [this] {
            if (turnoDeParada == 0) momentos.push_back(Ahora());
            if (++turno != turnoDeParada) return;
            if (!operacion.parar) throw std::bad_alloc();
            operacion.parar();
        };
    }
    void Correr(int64_t parada) {
        turno = 0;
        turnoDeParada = parada;
        mundo.Cajas.clear();
        mundo.Informes.clear();
        mundo.Peticiones.clear();
        try {
            operacion.correr();
        } catch (const std::bad_alloc&) {
            EXPECT_TRUE(operacion.escapa) << "want of memory was not told";
        }
    }
    void Entera() {
        momentos.clear();
        const double comienzo = Ahora();
        Correr(0);
        duracion = Ahora() - comienzo;
        for (double& momento : momentos) momento -= comienzo;
    }
    // The first turn after a random moment.
    int64_t TurnoAlAzar() {
        const double cuando = std::uniform_real_distribution<>(0, duracion)(azar);
        const auto siguiente = std::upper_bound(momentos.begin(), momentos.end(), cuando) - momentos.begin();
        return std::min<int64_t>(siguiente, static_cast<int64_t>(momentos.size()) - 1) + 1;
    }
    // Whatever a whole run writes is there before, with another content.
    void EnvejecerFicheros() {
        for (const auto& entrada : std::filesystem::directory_iterator(mundo.carpeta.Ruta()))
            if (const std::string ruta = entrada.path().string(); !Entrada(ruta)) EscribirTodo(ruta, Antes);
    }
    static bool Entrada(const std::string& ruta) { return ruta.find("/entrada") != std::string::npos; }

    void ExigirLibre() {
        const EstadoTrabajo& t = mundo.sesion.trabajo;
        EXPECT_FALSE(t.FormularioBloqueado || t.EstadoCalculando || t.picVentanaEspera.Visible);
        EXPECT_EQ(t.Contador.Progreso, "");
        EXPECT_LE(t.Contador.Reducidas, t.ApuestasReducidas.Apuestas());
        EXPECT_TRUE(!operacion.parar || turno <= turnoDeParada + TurnosParaAcabar || operacion.porPartes) << turno;
    }
    void ExigirComienzo() {
        const std::string queda = operacion.huella();
        const Textos todas = Lineas(entera);
        if (!operacion.porPartes) {
            EXPECT_TRUE(entera.starts_with(queda)) << queda;
            return;
        }
        for (const std::string& linea : Lineas(queda))
            EXPECT_NE(std::find(todas.begin(), todas.end(), linea), todas.end()) << linea;
    }
    void ExigirFicherosEnteros() {
        for (const std::string& fichero : Ficheros(mundo.carpeta.Ruta())) {
            const std::string nombre = fichero.substr(0, fichero.rfind(' ')), viejo = nombre + " 5";
            const bool conocido = std::any_of(ficheros.begin(), ficheros.end(),
                                              [&](const std::string& f) { return f.starts_with(nombre + " "); });
            EXPECT_TRUE(conocido) << "left behind: " << fichero;
            EXPECT_TRUE(operacion.parar || fichero == viejo ||
                        std::find(ficheros.begin(), ficheros.end(), fichero) != ficheros.end())
                << "half written: " << fichero;
        }
    }
};

TEST_P(DeOperacion, DejanTodoLimpio) {
    Entera();
    entera = operacion.huella();
    ficheros = Ficheros(mundo.carpeta.Ruta());
    ASSERT_GE(momentos.size(), 5u) << "too short to be stopped";
    int64_t memoria = 0;
    for (int n = 0; n < Veces && !HasFailure(); ++n) {
        EnvejecerFicheros();
        const int64_t parada = TurnoAlAzar();
        SCOPED_TRACE("stop at turn " + std::to_string(parada) + " of " + std::to_string(momentos.size()));
        Correr(parada);
        EXPECT_GE(turno, parada);
        ExigirLibre();
        ExigirComienzo();
        ExigirFicherosEnteros();
        if (operacion.comprobar) operacion.comprobar();
        if (n % EntreEnteras != EntreEnteras - 1) continue;
        Entera();
        EXPECT_EQ(operacion.huella(), entera) << "the next run";
        EXPECT_EQ(Ficheros(mundo.carpeta.Ruta()), ficheros);
        if (memoria == 0) memoria = MemoriaResidente();
    }
    EXPECT_LE(MemoriaResidente(), memoria + MargenMemoria);
}

// The pair of files of a save, from a process that is killed: each is the old one or the new one, and a
// name is only ever given to what is whole.
TEST(Paradas, MatarElProgramaAlGuardar) {
    Mundo m;
    m.Calcular(26);
    std::mt19937 azar(7);
    const std::string base = m.carpeta.Ruta("salida.xml");
    ASSERT_TRUE(GuardarCombinacion(m.sesion, m.entorno));
    const auto tamano = [](const auto& ruta) { return std::filesystem::file_size(ruta); };
    const auto sistemaEntero = tamano(m.salida), baseEntera = tamano(base);
    int muertos = 0;
    for (int n = 0; n < Veces && !testing::Test::HasFailure(); ++n) {
        EscribirTodo(m.salida, Antes);
        EscribirTodo(base, Antes);
        const pid_t hijo = fork();
        if (hijo == 0) _exit(GuardarCombinacion(m.sesion, m.entorno) ? 0 : 1);
        ASSERT_GT(hijo, 0);
        usleep(std::uniform_int_distribution<useconds_t>(0, 20000)(azar));
        kill(hijo, SIGKILL);
        int estado = 0;
        waitpid(hijo, &estado, 0);
        muertos += WIFSIGNALED(estado);
        for (const auto& entrada : std::filesystem::directory_iterator(m.carpeta.Ruta())) {
            const auto bytes = entrada.file_size();
            EXPECT_TRUE(bytes == 5 || bytes == sistemaEntero || bytes == baseEntera) << entrada.path();
        }
    }
    EXPECT_GT(muertos, 0);
    Tabla leida;
    ASSERT_TRUE(GuardarCombinacion(m.sesion, m.entorno));
    EXPECT_EQ(LeerFicheroApuestas(m.salida, leida, nullptr, m.sesion.trabajo.JuegoActual(), m.entorno), 230230);
}

constexpr auto Nombre = [](const auto& caso) { return std::string(caso.param.nombre); };
INSTANTIATE_TEST_SUITE_P(Calculo, DeOperacion, testing::ValuesIn(ParadasDeCalculo()), Nombre);
INSTANTIATE_TEST_SUITE_P(Ficheros, DeOperacion, testing::ValuesIn(ParadasDeFicheros()), Nombre);
INSTANTIATE_TEST_SUITE_P(Herramientas, DeOperacion, testing::ValuesIn(ParadasDeHerramientas()), Nombre);

} // namespace
