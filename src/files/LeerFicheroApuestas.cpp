#include <algorithm>
#include <cerrno>
#include <new>

#include "LectorApuesta.h"
#include "RegistrosDeFichero.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurnoAlLeer = 9000;
constexpr const char* FinInesperado = "el fichero termina antes de tiempo";

// Shortest record that can hold a bet: "1,2,3,4,5,6" behind its length.
constexpr int64_t BytesMinimosApuesta = 13;

class Lectura {
  public:
    Lectura(const Juego& juego, std::string* etiqueta, Entorno& entorno)
        : rapido_(juego), etiqueta_(etiqueta), entorno_(entorno) {}

    // Bets read, or -1 and `fallo`.
    int32_t Leer(const std::string& ruta, Tabla& apuestas) {
        if (!registros_.Abrir(ruta, fallo.Descripcion)) return -1;
        int32_t cantidad = 0;
        if (!LeerCantidad(cantidad)) return -1;
        if (cantidad > ApuestasMaximas) {
            Fallo(entorno_, "SOLO SE PUEDEN IMPORTAR " + std::to_string(ApuestasMaximas) + " APUESTAS");
            cantidad = ApuestasMaximas;
        }
        // A count that the file cannot hold fails where its records end, without asking for its memory.
        const int64_t caben = std::min<int64_t>(cantidad, registros_.Restantes() / BytesMinimosApuesta + 1);
        apuestas.DimensionarSinLimpiar(7, caben);
        for (size_t e = 0; e < 7; ++e) filas_[e] = apuestas.Fila(static_cast<int>(e) + 1);
        for (int64_t turno = ApuestasPorTurnoAlLeer; leidas_ < cantidad; turno += ApuestasPorTurnoAlLeer) {
            if (!LeerHasta(std::min<int64_t>(cantidad, turno - 1))) return -1;
            if (turno <= cantidad) CederTurno(turno);
        }
        return cantidad;
    }

    FalloLectura fallo;

  private:
    bool LeerCantidad(int32_t& cantidad) {
        if (!Siguiente()) return false;
        const auto registro = Siguiente();
        if (!registro) return false;
        // What cannot be deciphered gives "0", which would pass for an empty system.
        const bool descifrable = !registro->empty() && registro->size() <= RegistroMaximo;
        if (descifrable && LeerEntero(EncriptarRC4(*registro, ClaveApuestas), cantidad) && cantidad >= 0) return true;
        fallo.Descripcion = "el número de apuestas no es válido";
        return false;
    }

    std::optional<std::string_view> Siguiente() {
        fallo.Descripcion = FinInesperado;
        return registros_.Siguiente(fallo.Descripcion);
    }

    static constexpr int64_t Paso = BytesPorApuesta, ApuestasSueltas = 64;

    // Reads bets until `leidas_` is `hasta`.
    bool LeerHasta(int64_t hasta) {
        while (leidas_ < hasta) {
            LeerSeguidas(hasta);
            if (haParado_ && !LeerUna()) return false;
        }
        return true;
    }

    // Standard records, as many as are loaded; stops before the first of another form.
    void LeerSeguidas(int64_t hasta) {
        const std::string_view bytes = registros_.Cargados(BytesPorApuesta, fallo.Descripcion);
        const int64_t n = std::min(static_cast<int64_t>(bytes.size() / BytesPorApuesta), hasta - leidas_);
        std::array<uint8_t*, 7> filas = filas_;
        for (uint8_t*& fila : filas) fila += leidas_;
        const int64_t enGrupos = NucleoLeerApuestas(bytes.data(), n, rapido_.Forma(), filas);
        // One by one through what the groups refused, and then to the groups again.
        const int64_t hastaAqui = std::min(n, enGrupos + ApuestasSueltas);
        int64_t i = enGrupos;
        ApuestaLeida apuesta;
        for (; i < hastaAqui && rapido_.Leer(bytes.data() + i * Paso, apuesta); ++i) Guardar(leidas_ + i, apuesta);
        registros_.Tomar(static_cast<size_t>(i * Paso));
        leidas_ += i;
        haParado_ = i < hastaAqui || n == 0;
    }

    bool LeerUna() {
        const auto registro = Siguiente();
        ApuestaLeida apuesta;
        if (!registro) return false;
        if (!LeerTextoApuesta(EncriptarRC4(*registro, ClaveApuestas), rapido_.Forma(), apuesta, fallo)) {
            fallo.Descripcion = "apuesta " + std::to_string(leidas_ + 1) + ": " + fallo.Descripcion;
            return false;
        }
        Guardar(leidas_++, apuesta);
        return true;
    }

    void Guardar(int64_t i, const ApuestaLeida& apuesta) {
        for (size_t e = 0; e < 7; ++e) filas_[e][i] = apuesta[e];
    }

    void CederTurno(int64_t leidas) {
        if (etiqueta_ != nullptr) *etiqueta_ = std::to_string(leidas);
        entorno_.CederTurno();
    }

    RegistrosDeFichero registros_;
    LectorRapido rapido_;
    std::array<uint8_t*, 7> filas_{};
    int64_t leidas_ = 0;
    bool haParado_ = false; // at a record of another form, or where less than one is loaded
    std::string* etiqueta_;
    Entorno& entorno_;
};

} // namespace

int32_t LeerFicheroApuestas(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, const Juego& juego,
                            Entorno& entorno) {
    FalloLectura fallo;
    try {
        Lectura lectura(juego, etiqueta, entorno);
        if (const int32_t leidas = lectura.Leer(fichero, apuestas); leidas >= 0) return leidas;
        fallo = lectura.fallo;
    } catch (const std::bad_alloc&) {
        fallo.Descripcion = DescripcionFallo(ENOMEM);
    }
    apuestas.Dimensionar(7, 0);
    Fallo(entorno,
          "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO ( " + fallo.Descripcion + " " + fallo.Detalle + ")");
    return 0;
}
