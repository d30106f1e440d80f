// A draw-data service on this machine that answers what a test lays ready, and misbehaves on demand.
//
//     ServicioLocal servicio;
//     servicio.Responder({.Cuerpo = RespuestaXML(BONOLOTO, sorteos)});
//     guion.entorno.Servicio = servicio.Direccion();
//     servicio.Conectar(guion.entorno);                      // real requests instead of recorded ones
//     EXPECT_EQ(servicio.Peticiones(), Textos{"/servicios/v1/xml2/eurodreams?..."});
#pragma once

#include <chrono>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ClienteHttp.h"
#include "Entorno.h"

/// One answer, given to every request until the next one is laid ready.
struct RespuestaLocal {
    std::string Cuerpo{};
    int Estado = 200;
    std::string Redireccion{};                              ///< an address to go on at
    size_t CortarTras = std::numeric_limits<size_t>::max(); ///< bytes of the body after which the connection ends
    size_t Trozo = 1 << 16;                                 ///< bytes written at once ...
    std::chrono::milliseconds Pausa{0};                     ///< ... after a pause
    bool Callar = false;                                    ///< takes the request and never answers
};

struct CertificadoLocal {
    bool Cifrado = true;  ///< false: plain HTTP
    bool Conocido = true; ///< SSL_CERT_FILE names the certificate while the service lives
    bool Propio = true;   ///< made out to 127.0.0.1, otherwise to another server
    bool Caducado = false;
};

class ServicioLocal {
  public:
    explicit ServicioLocal(const CertificadoLocal& certificado = {});
    ~ServicioLocal();
    ServicioLocal(const ServicioLocal&) = delete;
    ServicioLocal& operator=(const ServicioLocal&) = delete;

    /// Scheme, host and port.
    const std::string& Direccion() const;
    void Responder(RespuestaLocal respuesta);
    /// Path and query of each request so far.
    std::vector<std::string> Peticiones() const;

    /// Sets the service of an environment and lets it make real requests.
    void Conectar(Entorno& entorno, const LimitesHttp& limites = {}) const;

  private:
    struct Motor;
    std::unique_ptr<Motor> motor_;
};
