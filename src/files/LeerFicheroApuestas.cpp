#include <algorithm>
#include <bit>
#include <cerrno>
#include <new>
#include <optional>
#include <vector>

#include "Ficheros.h"
#include "NucleoRegistros.h"
#include "RegistroApuestas.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurnoAlLeer = 9000;
constexpr const char* FinInesperado = "el fichero termina antes de tiempo";

// Shortest record that can hold a bet: "1,2,3,4,5,6" behind its length.
constexpr int64_t BytesMinimosApuesta = 13;

struct FalloLectura {
    std::string Descripcion, Detalle;
};

// The file in blocks that stay in the cache, seen as a run of records.
class Registros {
  public:
    bool Abrir(const std::string& ruta, std::string& fallo) {
        bloque_.resize(Bloque);
        return fichero_.Abrir(ruta, fallo);
    }

    // Bytes that no record has been taken from yet.
    int64_t Restantes() const { return fichero_.Bytes() - tomados_; }

    // What is loaded, at least `minimo` bytes of it unless the file ends before.
    std::string_view Cargados(size_t minimo, std::string& fallo) {
        if (fin_ - inicio_ < minimo) Rellenar(fallo);
        return {bloque_.data() + inicio_, fin_ - inicio_};
    }

    void Tomar(size_t bytes) {
        inicio_ += bytes;
        tomados_ += static_cast<int64_t>(bytes);
    }

    // The enciphered bytes of the next record; nothing when the file ends before it does.
    std::optional<std::string_view> Siguiente(std::string& fallo) {
        const std::string_view cabeza = Cargados(2, fallo);
        if (cabeza.size() < 2) return std::nullopt;
        const size_t largo = static_cast<uint8_t>(cabeza[0]) | static_cast<size_t>(static_cast<uint8_t>(cabeza[1]))
                                                                   << 8;
        const std::string_view registro = Cargados(2 + largo, fallo);
        if (registro.size() < 2 + largo) return std::nullopt;
        Tomar(2 + largo);
        return registro.substr(2, largo);
    }

  private:
    // More than the longest record, which is 2 + 65535 bytes.
    static constexpr size_t Bloque = 256 * 1024;

    void Rellenar(std::string& fallo) {
        std::memmove(bloque_.data(), bloque_.data() + inicio_, fin_ - inicio_);
        fin_ -= inicio_;
        inicio_ = 0;
        // Never more than there was when the file was opened: the table is sized by that.
        const int64_t quedan = std::min(static_cast<int64_t>(Bloque - fin_), fichero_.Bytes() - cargados_);
        const int64_t leidos = std::max<int64_t>(fichero_.Leer(bloque_.data() + fin_, quedan, fallo), 0);
        cargados_ += leidos;
        fin_ += static_cast<size_t>(leidos);
    }

    FicheroEntrada fichero_;
    std::vector<char> bloque_;
    size_t inicio_ = 0, fin_ = 0;
    int64_t cargados_ = 0, tomados_ = 0;
};

using ApuestaLeida = std::array<uint8_t, 7>;

// Takes standard records apart; what differs in anything is left to LeerTexto.
class LectorRapido {
  public:
    explicit LectorRapido(const Juego& juego) : ceros_(ApuestaDeCeros()) {
        const std::string registro = std::string("\x14\0", 2) + EncriptarRC4(TextoDeCeros, ClaveApuestas);
        std::string topes("\0\0", 2), cifras, sobra;
        for (const char c : TextoDeCeros) {
            topes += c == '0' ? '\x09' : '\0';
            cifras += c == '0' ? '\x06' : '\0';
            sobra += c == '0' ? '\xF0' : '\xFF';
        }
        cifras_ = CargarPalabras(cifras.data());
        sobra_ = CargarPalabras(sobra.data());
        std::memcpy(forma_.Cero1.data(), registro.data(), 16);
        std::memcpy(forma_.Cero2.data(), registro.data() + 6, 16);
        std::memcpy(forma_.Tope1.data(), topes.data(), 16);
        std::memcpy(forma_.Tope2.data(), topes.data() + 6, 16);
        // BONOLOTO has no digit of its own and takes the range of PRIMITIVA.
        forma_.DigitoMinimo = static_cast<uint8_t>(juego.TieneDigito() ? juego.DigitoMinimo : 0);
        forma_.DigitoMaximo = static_cast<uint8_t>(juego.TieneDigito() ? juego.DigitoMaximo : 9);
    }

    const FormaRegistro& Forma() const { return forma_; }

    // `registro` has its 22 bytes.
    bool Leer(const char* registro, ApuestaLeida& apuesta) const {
        uint16_t largo;
        std::memcpy(&largo, registro, 2);
        PalabrasApuesta p = CargarPalabras(registro + 2);
        uint64_t malo = 0;
        for (size_t i = 0; i < 3; ++i) {
            p[i] ^= ceros_[i]; // digits become 0 to 9, separators 0
            malo |= (p[i] | (p[i] + cifras_[i])) & sobra_[i];
            p[i] = p[i] * 10 + (p[i] >> 8); // the byte of the tens becomes the number
        }
        apuesta = {Byte(p[0], 0), Byte(p[0], 3), Byte(p[0], 6), Byte(p[1], 1),
                   Byte(p[2], 0), Byte(p[2], 3), Byte(p[2], 6)};
        return largo == LargoApuesta && malo == 0 && SonSeisDistintos(apuesta) && apuesta[6] >= forma_.DigitoMinimo &&
               apuesta[6] <= forma_.DigitoMaximo;
    }

  private:
    static uint8_t Byte(uint64_t palabra, int lugar) { return static_cast<uint8_t>(palabra >> 8 * lugar); }

    static bool SonSeisDistintos(const ApuestaLeida& apuesta) {
        uint64_t vistos = 0;
        for (size_t e = 0; e < 6; ++e) {
            if (apuesta[e] < 1 || apuesta[e] > NumeroMaximoBoleto) return false;
            vistos |= uint64_t{1} << apuesta[e];
        }
        return std::popcount(vistos) == 6;
    }

    PalabrasApuesta ceros_, cifras_{}, sobra_{};
    FormaRegistro forma_{};
};

std::vector<std::string_view> Partir(std::string_view texto) {
    std::vector<std::string_view> partes;
    for (size_t coma; (coma = texto.find(',')) != std::string_view::npos; texto.remove_prefix(coma + 1))
        partes.push_back(texto.substr(0, coma));
    partes.push_back(texto);
    return partes;
}

// The bet of a deciphered record in any form that the format allows.
bool LeerTexto(std::string texto, const FormaRegistro& forma, ApuestaLeida& apuesta, FalloLectura& fallo) {
    const bool conDigito = texto.find('+') != std::string::npos;
    std::replace(texto.begin(), texto.end(), '+', ',');
    const auto partes = Partir(texto);
    uint64_t vistos = 0;
    int32_t n = 0;
    for (size_t i = 0; i < 6; ++i) {
        if (i >= partes.size()) return fallo.Descripcion = "faltan números", false;
        if (!LeerEntero(partes[i], n)) return fallo.Descripcion = "hay algo que no es un número", false;
        if (n < 1 || n > NumeroMaximoBoleto) return fallo.Descripcion = "número fuera de 1 a 49", false;
        if ((vistos >> n & 1) != 0) return fallo.Descripcion = "número repetido", false;
        vistos |= uint64_t{1} << n;
        apuesta[i] = static_cast<uint8_t>(n);
    }
    apuesta[6] = 1;
    if (!conDigito) return true;
    if (partes.size() < 7 || !LeerEntero(partes[6], n)) return fallo.Descripcion = "el dígito no es un número", false;
    if (n < forma.DigitoMinimo || n > forma.DigitoMaximo) {
        fallo.Descripcion = "dígito fuera de su intervalo";
        fallo.Detalle = forma.DigitoMinimo == 0 ? "REINTEGROS INCORRECTOS" : "SUEÑOS INCORRECTOS";
        return false;
    }
    apuesta[6] = static_cast<uint8_t>(n);
    return true;
}

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
        if (!LeerTexto(EncriptarRC4(*registro, ClaveApuestas), rapido_.Forma(), apuesta, fallo)) {
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

    Registros registros_;
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
