#include "Guion.h"

#include <cstring>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <stdlib.h>

#include "Boleto.h"
#include "Sesiones.h"

CarpetaTemporal::CarpetaTemporal() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "tombolera-XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("mkdtemp: " + plantilla);
    carpeta_ = plantilla;
}

CarpetaTemporal::~CarpetaTemporal() {
    std::error_code ignorado;
    std::filesystem::remove_all(carpeta_, ignorado);
}

Guion::Guion() {
    entorno.Mensaje = [this](Icono icono, const std::string& texto) {
        Cajas.push_back((icono == Icono::Critico ? "[X] " : icono == Icono::Exclamacion ? "[!] " : "[i] ") + texto);
    };
    entorno.Preguntar = [this](const std::string& texto) {
        bool si = false;
        if (!Respuestas.empty()) {
            si = Respuestas.front();
            Respuestas.pop_front();
        }
        Cajas.push_back("[?] " + texto + (si ? " -> sí" : " -> no"));
        return si;
    };
    entorno.PedirAbrir = entorno.PedirGuardar = [this](const PeticionFichero& peticion) {
        Peticiones.push_back(peticion);
        if (Ficheros.empty()) return std::string();
        const std::string ruta = Ficheros.front();
        Ficheros.pop_front();
        return ruta;
    };
    entorno.CederTurno = [this] {
        if (const auto accion = acciones_.find(++Turnos); accion != acciones_.end()) {
            const auto hacer = std::move(accion->second);
            acciones_.erase(accion);
            hacer();
        }
    };
    entorno.MostrarVentanaProceso = [this](LogicaVentanaProceso& ventana) {
        Ventana = &ventana;
        ventana.TopeCiclos = CiclosDeReduccion;
        ventana.Activar();
        Ventana = nullptr;
    };
    entorno.VerInforme = [this](const std::string& ruta) { Informes.push_back(ruta); };
    entorno.AbrirDireccion = [this](const std::string& direccion) {
        Direcciones.push_back(direccion);
        return true;
    };
    entorno.Ahora = [] { return FechaHora{2024, 5, 17, 9, 8, 7}; };
    entorno.Pitar = [this] { ++Pitidos; };
    IniciarSesion(sesion, entorno);
}

Guion::~Guion() {
    EXPECT_TRUE(Respuestas.empty()) << Respuestas.size() << " answers were not asked for";
    EXPECT_TRUE(Ficheros.empty()) << "not asked for: " << Ficheros.front();
    EXPECT_TRUE(acciones_.empty()) << "turn " << acciones_.begin()->first << " never came, there were " << Turnos;
}

void Guion::Marcar(std::initializer_list<int> numeros) {
    for (const int n : numeros) sesion.trabajo.lblNumero[static_cast<size_t>(n)] = true;
    ActualizarContadores(sesion.trabajo);
}

void Guion::MarcarHasta(int n) {
    for (int i = 1; i <= n; ++i) sesion.trabajo.lblNumero[static_cast<size_t>(i)] = true;
    ActualizarContadores(sesion.trabajo);
}

void Guion::MarcarDigitos(std::initializer_list<int> digitos) {
    for (const int d : digitos) sesion.trabajo.lblReintegro[static_cast<size_t>(d)] = true;
}

void Guion::PonerApuestas(const std::vector<Apuesta>& apuestas) {
    EstadoTrabajo& trabajo = sesion.trabajo;
    MarcarHasta(49);
    LeerBase(trabajo);
    trabajo.ApuestasEnTabla = static_cast<int32_t>(apuestas.size());
    trabajo.TablaApuestas.Dimensionar(6, trabajo.ApuestasEnTabla);
    trabajo.ApuestaEliminada.Dimensionar(1, trabajo.ApuestasEnTabla);
    std::memset(trabajo.ApuestaEliminada.Fila(1) + apuestas.size(), 1, 64);
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (size_t r = 0; r < 6; ++r)
            trabajo.TablaApuestas(static_cast<int>(r) + 1, static_cast<int64_t>(i) + 1) =
                static_cast<uint8_t>(apuestas[i][r]);
}

std::vector<Apuesta> Apuestas(const Tabla& tabla, int filas) {
    std::vector<Apuesta> apuestas(static_cast<size_t>(tabla.Apuestas()));
    for (size_t i = 0; i < apuestas.size(); ++i)
        for (int r = 1; r <= filas; ++r) apuestas[i].push_back(tabla(r, static_cast<int64_t>(i) + 1));
    return apuestas;
}

std::string LeerTodo(const std::string& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    EXPECT_TRUE(fichero) << ruta;
    std::ostringstream texto;
    texto << fichero.rdbuf();
    return texto.str();
}

void EscribirTodo(const std::string& ruta, const std::string& bytes) {
    std::ofstream fichero(ruta, std::ios::binary);
    fichero.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(fichero) << ruta;
}
