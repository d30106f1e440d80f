// The text importers step by step, over a file held whole in memory.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

using ApuestaLiteral = std::vector<int>;

struct ImportacionLiteral {
    std::vector<ApuestaLiteral> Apuestas; ///< of seven elements, none after a failure
    bool Fallo = false;
    std::string Detalle; ///< empty after a failure that no test raised
};

class ImportarTXTLiteral {
  public:
    ImportarTXTLiteral(bool con, std::string tipoJuego, int numeroMaximo)
        : con_(con), tipoJuego_(std::move(tipoJuego)), maximo_(con ? numeroMaximo : 49) {}

    ImportacionLiteral Importar(const std::string& bytes) {
        ImportacionLiteral hecha;
        try {
            const size_t caben = bytes.size() / 14 + 2;
            const auto lineas = Lineas(bytes);
            if (lineas.empty()) return hecha;
            separador_ = lineas[0].find(' ') != std::string::npos                                               ? ' '
                         : lineas[0].find(',') == std::string::npos && lineas[0].find('-') == std::string::npos ? '\0'
                                                                                                                : ',';
            for (const std::string& linea : lineas) {
                contador_ = hecha.Apuestas.size() + 1;
                ApuestaLiteral apuesta = separador_ == '\0' ? Fija(linea) : Separada(linea);
                if (apuesta.empty()) continue;
                if (hecha.Apuestas.size() == caben) throw std::out_of_range("subscript");
                hecha.Apuestas.push_back(apuesta);
            }
        } catch (const std::exception&) {
            hecha.Apuestas.clear();
            hecha.Fallo = true;
            hecha.Detalle = detalle_;
        }
        return hecha;
    }

  private:
    static std::vector<std::string> Lineas(const std::string& bytes) {
        std::vector<std::string> lineas;
        std::string linea;
        for (size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] != '\r' && bytes[i] != '\n') {
                linea += bytes[i];
                continue;
            }
            if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
            lineas.push_back(linea);
            linea.clear();
        }
        if (!linea.empty()) lineas.push_back(linea);
        return lineas;
    }

    // A whole number, perhaps signed, with blanks around it.
    static int Numero(const std::string& campo) {
        const size_t desde = campo.find_first_not_of(" \t"), hasta = campo.find_last_not_of(" \t");
        if (desde == std::string::npos) throw std::invalid_argument(campo);
        const std::string texto = campo.substr(desde, hasta - desde + 1);
        const size_t cifras = texto[0] == '-' ? 1 : 0;
        if (cifras == texto.size() || texto.find_first_not_of("0123456789", cifras) != std::string::npos)
            throw std::invalid_argument(texto);
        return std::stoi(texto);
    }

    void Exigir(bool bien, const std::string& detalle) {
        if (bien) return;
        detalle_ = detalle + " (Apuesta " + std::to_string(contador_) + ")";
        throw std::domain_error(detalle_);
    }

    void ExigirNumero(int n, int anterior) {
        Exigir(n >= 1 && n <= maximo_, "Apuestas con números fuera del intervalo 1-" + std::to_string(maximo_));
        Exigir(n > anterior, "Apuestas con números no en orden ascendente");
    }

    void ExigirDigito(int n) {
        if (tipoJuego_ == "PRIMITIVA")
            Exigir(n >= 0 && n <= 9, "Apuestas con reintegros fuera del intervalo 0-9");
        else
            Exigir(n >= 1 && n <= 5, "Apuestas con sueños fuera del intervalo 1-5");
    }

    ApuestaLiteral Fija(std::string linea) {
        std::erase_if(linea, [](char c) { return std::string("*-,+ ").find(c) != std::string::npos; });
        if (linea.size() < 12) return {};
        ApuestaLiteral apuesta(7);
        int anterior = 0;
        for (size_t i = 1; i <= 6; ++i) {
            apuesta[i - 1] = Numero(linea.substr(2 * i - 2, 2));
            ExigirNumero(apuesta[i - 1], anterior);
            anterior = apuesta[i - 1];
        }
        if (!con_) return apuesta;
        apuesta[6] = Numero(linea.substr(12, 2));
        ExigirDigito(apuesta[6]);
        return apuesta;
    }

    ApuestaLiteral Separada(std::string linea) {
        if (linea.size() < 12) return {};
        std::replace(linea.begin(), linea.end(), '+', con_ ? ',' : separador_);
        std::vector<std::string> campos(1);
        for (const char c : linea)
            if (c == separador_)
                campos.emplace_back();
            else
                campos.back() += c;
        std::erase(campos, "");
        ApuestaLiteral apuesta(7);
        int anterior = 0;
        for (size_t i = 0; i < 6; ++i) {
            apuesta[i] = Numero(campos.at(i));
            ExigirNumero(apuesta[i], anterior);
            anterior = apuesta[i];
        }
        if (!con_) return apuesta;
        const std::string que = tipoJuego_ == "PRIMITIVA" ? "reintegros" : "sueños";
        Exigir(campos.size() >= 7, "Ha elegido la opción de Cargar " +
                                       std::string(tipoJuego_ == "PRIMITIVA" ? "Reintegros" : "Sueños") +
                                       " y el fichero no tiene " + que + " en sus apuestas");
        apuesta[6] = Numero(campos[6]);
        ExigirDigito(apuesta[6]);
        return apuesta;
    }

    bool con_;
    std::string tipoJuego_;
    int maximo_;
    char separador_ = '\0';
    size_t contador_ = 1;
    std::string detalle_;
};
