// The draw-data service: its one request and what an answer holds.
//
//     RespuestaServicio respuesta;
//     if (!ConsultarServicioSorteos(respuesta, "temporada=todas&juego=BONOLOTO", entorno))
//         ... respuesta.Fallo(): no answer, why
//     if (!respuesta.Legible()) ... respuesta.Motivo(): no XML, why
//     if (!respuesta.LeerCombinaciones("BONOLOTO", sorteos)) ... respuesta.Fallo()
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Entorno.h"
#include "Sorteos.h"

/// Prize categories of an answer, in the order of `SorteoConPremios::categoria`.
enum CategoriaServicio : size_t { CAT6R, CAT6, CAT5C, CAT5, CAT4, CAT3, NCategoriasServicio };

struct PremioServicio {
    double premio = 0;      ///< euros for each winner
    int32_t acertantes = 0; ///< winners; not told for CAT6R
};

/// What the service tells of the money of a draw.
struct SorteoConPremios {
    int16_t anio = 0;
    uint16_t sorteo = 0;
    uint8_t dia = 0;
    std::string fecha; ///< as told, day/month/year
    double recaudacion = 0, bote = 0;
    std::array<PremioServicio, NCategoriasServicio> categoria{};
};

class RespuestaServicio {
  public:
    RespuestaServicio();
    ~RespuestaServicio();
    RespuestaServicio(const RespuestaServicio&) = delete;
    RespuestaServicio& operator=(const RespuestaServicio&) = delete;

    /// Takes an answer's body. False when it is no well-formed XML; `Motivo` then tells why.
    bool Analizar(std::string cuerpo);

    bool Legible() const { return motivo_.empty(); }
    const std::string& Motivo() const { return motivo_; }

    /// The draws of a game ("PRIMITIVA", ...) in the answer's order, added behind those of `sorteos`.
    /// Names match in any case, elements of another name are skipped. Numbers are any of 0 to 255, the
    /// day may be unknown: what the rest of the program cannot use, its reader refuses. On a value that
    /// is missing or does not fit: false, `Fallo` tells which, and `sorteos` holds those before it.
    bool LeerCombinaciones(std::string_view juego, Sorteos& sorteos);
    /// The same for the draws with their prizes.
    bool LeerSorteos(std::string_view juego, std::vector<SorteoConPremios>& sorteos);

    const std::string& Fallo() const { return fallo_; }

  private:
    friend bool ConsultarServicioSorteos(RespuestaServicio&, const std::string&, Entorno&);
    struct Documento;
    std::unique_ptr<Documento> documento_;
    std::string motivo_, fallo_;
};

/// Asks the service with these query keys ("temporada=todas&juego=BONOLOTO"). False when no answer
/// came: `respuesta.Fallo` tells why. With an answer true, also when it turns out to be no XML.
bool ConsultarServicioSorteos(RespuestaServicio& respuesta, const std::string& consulta, Entorno& entorno);

/// Base address of the service: the environment variable TOMBOLERA_SERVICIO, else what the program was
/// built with. Empty when neither is set.
std::string ServicioConfigurado();

/// Reads an amount in either notation: the last of "." and "," followed by one or two final digits is
/// the decimal one, the others group. A blank counts as 0. False when it is no amount.
bool LeerImporte(std::string_view texto, double& importe);
