#include "modImportarASCII.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <vector>

#include "LectorLineas.h"
#include "MoldeApuesta.h"
#include "modEncriptarFichero.h"
#include "modGeneral.h"

namespace {

constexpr int64_t ApuestasPorTurno = 9000;

// Twelve digits and two bytes of line end: the lines that a file of some length is thought to have.
constexpr int64_t BytesPorLinea = 14;

constexpr size_t LargoMinimo = 12;
constexpr std::string_view MarcaUtf8 = "\xEF\xBB\xBF";

bool EsFin(char c) {
    return c == '\n' || c == '\r';
}

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

// One reading of a text file. `juego` is null when digits are not read.
class LecturaTexto {
  public:
    LecturaTexto(const Juego* juego, std::string* etiqueta, Entorno& entorno)
        : juego_(juego), maximo_(juego != nullptr ? juego->NumeroMaximo : NumeroMaximoBoleto), etiqueta_(etiqueta),
          entorno_(entorno) {}

    // Bets read, or -1 and what failed.
    int32_t Leer(const std::string& fichero, Tabla& apuestas) {
        if (!lineas_.Abrir(fichero)) return Fracasar(lineas_.Fallo()), -1;
        capacidad_ = std::min<int64_t>(ApuestasMaximas, lineas_.Bytes() / BytesPorLinea + 2);
        apuestas.DimensionarSinLimpiar(7, capacidad_);
        for (size_t e = 0; e < 7; ++e) filas_[e] = apuestas.Fila(static_cast<int>(e) + 1);
        if (!LeerPrimera() || !LeerLineas()) return -1;
        apuestas.Acortar(leidas_);
        return static_cast<int32_t>(leidas_);
    }

    std::string Descripcion, Detalle;

  private:
    using Apuesta = std::array<uint8_t, 7>;

    // The first line is a bet like the others, and tells the layout of all.
    bool LeerPrimera() {
        std::string_view linea;
        if (!lineas_.Siguiente(linea)) return lineas_.Fallo().empty() || Fracasar(lineas_.Fallo());
        SeparadorDeCampos(linea, separador_);
        molde_ = MoldeApuesta(separador_);
        const bool marca = linea.starts_with(MarcaUtf8);
        if (LeerLinea(linea)) return true;
        if (marca && Detalle.empty()) Fracasar("el fichero empieza con una marca UTF-8, guárdelo como texto ANSI");
        return false;
    }

    bool LeerLineas() {
        while (!completa_) {
            LeerRegulares();
            std::string_view linea;
            if (completa_ || !lineas_.Siguiente(linea)) break;
            if (!LeerLinea(linea)) return false;
        }
        return completa_ || lineas_.Fallo().empty() || Fracasar(lineas_.Fallo());
    }

    // Lines that look as a program writes them, as many as there are; stops before any other.
    void LeerRegulares() {
        constexpr size_t minimo = 64; // no regular line is longer
        Apuesta apuesta;
        for (std::string_view bytes; (bytes = lineas_.Cargado(minimo)).size() >= minimo;) {
            const char* linea = bytes.data();
            const char* ultima = linea + bytes.size() - minimo;
            size_t largo = 1;
            while (linea <= ultima && leidas_ < capacidad_ && (largo = LeerRegular(linea, minimo, apuesta)) != 0) {
                Guardar(apuesta);
                linea += largo;
            }
            lineas_.Tomar(static_cast<size_t>(linea - bytes.data()));
            if (largo == 0 || leidas_ == capacidad_) return;
        }
    }

    // The bytes of the line with its end, 0 for one that is to be read the long way.
    size_t LeerRegular(const char* linea, size_t cabe, Apuesta& apuesta) const {
        std::array<uint8_t, 6> numeros;
        if (!molde_.Leer(linea, maximo_, numeros)) return 0;
        std::copy(numeros.begin(), numeros.end(), apuesta.begin());
        const char* resto = linea + molde_.Largo();
        if (juego_ != nullptr) {
            if (!LeerDigitoRegular(resto, apuesta[6])) return 0;
        } else {
            apuesta[6] = 0;
            if (!separador_.empty() && !EsFin(*resto) && *resto != separador_[0] && *resto != '+') return 0;
            const char* tope = linea + cabe - 2;
            while (resto < tope && !EsFin(*resto)) ++resto;
        }
        if (!EsFin(*resto)) return 0;
        resto += resto[0] == '\r' && resto[1] == '\n' ? 2 : 1;
        return static_cast<size_t>(resto - linea);
    }

    // Leaves `resto` behind a digit of one or two characters that is in its range.
    bool LeerDigitoRegular(const char*& resto, uint8_t& digito) const {
        if (separador_.empty() ? *resto == '+' : *resto == separador_[0] || (*resto == '+' && separador_[0] == ','))
            ++resto;
        else if (!separador_.empty())
            return false;
        int n = 0;
        const char* tope = resto + 2;
        if (!EsCifra(*resto)) return false;
        while (resto < tope && EsCifra(*resto)) n = 10 * n + (*resto++ - '0');
        digito = static_cast<uint8_t>(n);
        return DigitoValido(n);
    }

    bool LeerLinea(std::string_view linea) { return separador_.empty() ? LeerFija(linea) : LeerSeparada(linea); }

    bool LeerFija(std::string_view linea) {
        const std::string limpia = QuitarSeparadores(linea);
        if (limpia.size() < LargoMinimo) return true;
        std::vector<std::string_view> campos;
        for (size_t i = 0; i < 7; ++i)
            campos.push_back(std::string_view(limpia).substr(std::min(2 * i, limpia.size()), 2));
        return LeerCampos(campos);
    }

    bool LeerSeparada(std::string_view linea) {
        if (linea.size() < LargoMinimo) return true;
        std::string texto(linea);
        std::replace(texto.begin(), texto.end(), '+', juego_ != nullptr ? ',' : separador_[0]);
        std::vector<std::string_view> campos; // the empty ones do not count
        for (std::string_view resto = texto; campos.size() < 7 && !resto.empty();) {
            const std::string_view campo = resto.substr(0, resto.find(separador_));
            if (!campo.empty()) campos.push_back(campo);
            resto.remove_prefix(std::min(campo.size() + 1, resto.size()));
        }
        return LeerCampos(campos);
    }

    bool LeerCampos(const std::vector<std::string_view>& campos) {
        Apuesta apuesta{};
        int32_t n = 0, anterior = 0;
        for (size_t i = 0; i < 6; ++i, anterior = n) {
            if (i >= campos.size()) return FracasarApuesta("faltan números");
            if (!LeerEntero(campos[i], n)) return FracasarApuesta("hay algo que no es un número");
            if (n < 1 || n > maximo_)
                return Rechazar("Apuestas con números fuera del intervalo 1-" + std::to_string(maximo_));
            if (n <= anterior) return Rechazar("Apuestas con números no en orden ascendente");
            apuesta[i] = static_cast<uint8_t>(n);
        }
        if (juego_ != nullptr) {
            if (campos.size() < 7) return FaltaDigito();
            if (!LeerEntero(campos[6], n)) return FracasarApuesta("el dígito no es un número");
            if (!DigitoValido(n))
                return Rechazar(EsPrimitiva() ? "Apuestas con reintegros fuera del intervalo 0-9"
                                              : "Apuestas con sueños fuera del intervalo 1-5");
            apuesta[6] = static_cast<uint8_t>(n);
        }
        if (leidas_ == capacidad_) return FracasarApuesta("subíndice fuera del intervalo");
        Guardar(apuesta);
        return true;
    }

    void Guardar(const Apuesta& apuesta) {
        for (size_t e = 0; e < 7; ++e) filas_[e][leidas_] = apuesta[e];
        if (++leidas_ % ApuestasPorTurno == 0) {
            if (etiqueta_ != nullptr) *etiqueta_ = std::to_string(leidas_);
            entorno_.CederTurno();
        }
        if (leidas_ < ApuestasMaximas) return;
        completa_ = true;
        Fallo(entorno_, "SOLO SE PUEDEN IMPORTAR " + std::to_string(ApuestasMaximas) + " APUESTAS");
    }

    // Only PRIMITIVA has its own range; BONOLOTO shares that of EURODREAMS.
    bool EsPrimitiva() const { return juego_->Nombre == Juegos[PRIMITIVA].Nombre; }
    bool DigitoValido(int n) const { return EsPrimitiva() ? n >= 0 && n <= 9 : n >= 1 && n <= 5; }

    bool FaltaDigito() {
        return Rechazar(
            EsPrimitiva() ? "Ha elegido la opción de Cargar Reintegros y el fichero no tiene reintegros en sus apuestas"
                          : "Ha elegido la opción de Cargar Sueños y el fichero no tiene sueños en sus apuestas");
    }

    bool Rechazar(const std::string& detalle) {
        Detalle = detalle + " (Apuesta " + std::to_string(leidas_ + 1) + ")";
        return Fracasar("datos incorrectos:");
    }
    bool FracasarApuesta(const std::string& descripcion) {
        return Fracasar("apuesta " + std::to_string(leidas_ + 1) + ": " + descripcion);
    }
    bool Fracasar(const std::string& descripcion) {
        Descripcion = descripcion;
        return false;
    }

    const Juego* juego_;
    int maximo_;
    std::string* etiqueta_;
    Entorno& entorno_;
    LectorLineas lineas_;
    std::string separador_; // empty for fields of fixed width
    MoldeApuesta molde_{""};
    std::array<uint8_t*, 7> filas_{};
    int64_t capacidad_ = 0, leidas_ = 0;
    bool completa_ = false; // the limit was reached
};

int32_t ImportarTXT(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, const Juego* juego,
                    Entorno& entorno) {
    LecturaTexto lectura(juego, etiqueta, entorno);
    try {
        if (const int32_t leidas = lectura.Leer(fichero, apuestas); leidas >= 0) return leidas;
    } catch (const std::bad_alloc&) {
        lectura.Descripcion = DescripcionFallo(ENOMEM);
    }
    apuestas.Dimensionar(7, 0);
    Fallo(entorno,
          "ERROR AL IMPORTAR EL FICHERO, FICHERO NO IMPORTADO (" + lectura.Descripcion + " " + lectura.Detalle + ")");
    return 0;
}

} // namespace

int32_t ImportarTXTConReintegros(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, const Juego& juego,
                                 Entorno& entorno) {
    return ImportarTXT(fichero, apuestas, etiqueta, &juego, entorno);
}

int32_t ImportarTXTSinReintegros(const std::string& fichero, Tabla& apuestas, std::string* etiqueta, Entorno& entorno) {
    return ImportarTXT(fichero, apuestas, etiqueta, nullptr, entorno);
}

int32_t LeerApuestas(const std::string& fichero, bool conReintegros, Tabla& apuestas, std::string* etiqueta,
                     const Juego& juego, Entorno& entorno) {
    if (TieneExtension(fichero, ".tom")) return LeerFicheroApuestas(fichero, apuestas, etiqueta, juego, entorno);
    return ImportarTXT(fichero, apuestas, etiqueta, conReintegros ? &juego : nullptr, entorno);
}

PeticionFichero PeticionAbrirApuestas() {
    return {"Abrir Fichero",
            {{"Ficheros de Apuestas (*.TXT)", "*.TXT"},
             {"Ficheros en formato TOMBOLERA (*.TOM)", "*.TOM"},
             {"todos los archivos (*.*)", "*.*"}},
            "",
            1};
}
