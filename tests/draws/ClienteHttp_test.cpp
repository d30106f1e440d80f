#include "ClienteHttp.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "ServicioLocal.h"

namespace {

using namespace std::chrono_literals;

struct Pedido {
    bool Bien;
    std::string Cuerpo, Fallo;
    int Turnos = 0;
};

Pedido Pedir(const std::string& url, const LimitesHttp& limites = {}, int turnosHastaParar = -1) {
    Pedido p{};
    p.Cuerpo = "lo de antes";
    const auto seguir = [&] { return ++p.Turnos != turnosHastaParar; };
    p.Bien = PedirHttp(url, p.Cuerpo, p.Fallo, seguir, limites);
    EXPECT_EQ(p.Bien, p.Fallo.empty());
    if (!p.Bien) {
        EXPECT_EQ(p.Cuerpo, "");
    }
    return p;
}

// A port that takes connections and never says a word, or one that nobody listens at.
class Puerto {
  public:
    explicit Puerto(bool escucha) : zocalo_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in lugar{};
        lugar.sin_family = AF_INET;
        lugar.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t largo = sizeof lugar;
        auto* generico = reinterpret_cast<sockaddr*>(&lugar);
        EXPECT_EQ(bind(zocalo_, generico, largo), 0);
        EXPECT_EQ(getsockname(zocalo_, generico, &largo), 0);
        if (escucha) {
            EXPECT_EQ(listen(zocalo_, 8), 0);
        }
        direccion_ = "https://127.0.0.1:" + std::to_string(ntohs(lugar.sin_port));
    }
    ~Puerto() { close(zocalo_); }
    Puerto(const Puerto&) = delete;
    Puerto& operator=(const Puerto&) = delete;
    const std::string& Direccion() const { return direccion_; }

  private:
    int zocalo_;
    std::string direccion_;
};

TEST(ClienteHttp, EntregaElCuerpoSeaCualSeaElEstado) {
    ServicioLocal servicio;
    const std::string cuerpo("uno\0dos", 7);
    for (const int estado : {200, 403, 404, 500, 503}) {
        servicio.Responder({.Cuerpo = cuerpo, .Estado = estado});
        const Pedido p = Pedir(servicio.Direccion() + "/ruta?clave=valor&otra=1");
        EXPECT_EQ(p.Fallo, "") << estado;
        EXPECT_EQ(p.Cuerpo, cuerpo);
    }
    servicio.Responder({});
    EXPECT_EQ(Pedir(servicio.Direccion()).Fallo, "");
    EXPECT_EQ(servicio.Peticiones().front(), "/ruta?clave=valor&otra=1");
    EXPECT_EQ(servicio.Peticiones().size(), 6u);
}

TEST(ClienteHttp, SoloConUnCertificadoBueno) {
    struct Caso {
        CertificadoLocal Certificado;
        std::string Fallo;
    };
    const std::string malo = "el certificado del servidor no es válido";
    const std::vector<Caso> casos{{{}, ""},
                                  {{.Conocido = false}, malo},
                                  {{.Propio = false}, malo},
                                  {{.Caducado = true}, malo},
                                  {{.Cifrado = false}, ""}};
    for (size_t i = 0; i < casos.size(); ++i) {
        ServicioLocal servicio(casos[i].Certificado);
        servicio.Responder({.Cuerpo = "x"});
        EXPECT_EQ(Pedir(servicio.Direccion()).Fallo, casos[i].Fallo) << i;
        EXPECT_EQ(servicio.Peticiones().size(), casos[i].Fallo.empty() ? 1u : 0u) << i;
    }
}

TEST(ClienteHttp, LasAutoridadesSalenDelFicheroQueSeDiga) {
    ServicioLocal servicio;
    setenv("SSL_CERT_FILE", "/no/existe.pem", 1);
    EXPECT_EQ(Pedir(servicio.Direccion()).Fallo, "no se puede leer el fichero de autoridades certificadoras");
}

TEST(ClienteHttp, LasRedireccionesSoloVanAHttps) {
    ServicioLocal claro({.Cifrado = false}), cifrado;
    claro.Responder({.Cuerpo = "claro"});
    cifrado.Responder({.Redireccion = claro.Direccion() + "/final"});
    EXPECT_EQ(Pedir(cifrado.Direccion()).Fallo, "la dirección del servicio no es válida o no es segura");
    EXPECT_TRUE(claro.Peticiones().empty());

    cifrado.Responder({.Cuerpo = "cifrado"});
    claro.Responder({.Redireccion = cifrado.Direccion() + "/final"});
    EXPECT_EQ(Pedir(claro.Direccion()).Cuerpo, "cifrado");
    EXPECT_EQ(cifrado.Peticiones().back(), "/final");

    cifrado.Responder({.Redireccion = cifrado.Direccion() + "/otra"});
    EXPECT_EQ(Pedir(cifrado.Direccion()).Fallo, "el servidor redirige demasiadas veces");
}

TEST(ClienteHttp, UnaConexionCortadaEsUnFallo) {
    ServicioLocal servicio;
    for (const size_t bytes : {size_t{0}, size_t{1}, size_t{99999}}) {
        servicio.Responder({.Cuerpo = std::string(100000, 'x'), .CortarTras = bytes});
        EXPECT_EQ(Pedir(servicio.Direccion()).Fallo, "la conexión se ha cortado") << bytes;
    }
}

TEST(ClienteHttp, DireccionesQueNoLlevanANadie) {
    const Puerto cerrado(false);
    EXPECT_EQ(Pedir(cerrado.Direccion()).Fallo, "no se puede conectar con el servidor");
    EXPECT_EQ(Pedir("https://servidor.invalid").Fallo, "no se encuentra el servidor");
    for (const char* mala : {"", "https://", "https://a b/", "file:///etc/passwd", "ftp://127.0.0.1/"})
        EXPECT_EQ(Pedir(mala).Fallo, "la dirección del servicio no es válida o no es segura") << mala;
}

TEST(ClienteHttp, SinUnByteFallaYDespacioNo) {
    LimitesHttp limites{.SinBytes = 300ms};
    ServicioLocal servicio;
    servicio.Responder({.Callar = true});
    EXPECT_EQ(Pedir(servicio.Direccion(), limites).Fallo, "el servidor no contesta");
    servicio.Responder({.Cuerpo = "xy", .Pausa = 1h});
    EXPECT_EQ(Pedir(servicio.Direccion(), limites).Fallo, "el servidor no contesta");
    const Puerto mudo(true);
    EXPECT_EQ(Pedir(mudo.Direccion(), limites).Fallo, "el servidor no contesta");

    limites.SinBytes = 1s;
    // Slower in all than the limit, but never silent for as long.
    servicio.Responder({.Cuerpo = std::string(40, 'x'), .Trozo = 1, .Pausa = 50ms});
    const Pedido despacio = Pedir(servicio.Direccion(), limites);
    EXPECT_EQ(despacio.Cuerpo, std::string(40, 'x')) << despacio.Fallo;
    EXPECT_GE(despacio.Turnos, 20);
}

TEST(ClienteHttp, SePuedeInterrumpir) {
    ServicioLocal servicio;
    servicio.Responder({.Callar = true});
    const Pedido p = Pedir(servicio.Direccion(), {}, 3);
    EXPECT_EQ(p.Fallo, "se ha interrumpido");
    EXPECT_EQ(p.Turnos, 3);
}

TEST(ClienteHttp, ElCuerpoTieneTope) {
    ServicioLocal servicio;
    servicio.Responder({.Cuerpo = std::string(100000, 'x')});
    EXPECT_EQ(Pedir(servicio.Direccion(), {.BytesMaximos = 100000}).Cuerpo.size(), 100000u);
    EXPECT_EQ(Pedir(servicio.Direccion(), {.BytesMaximos = 99999}).Fallo,
              "la respuesta es demasiado grande, pasa de 99999 bytes");
}

} // namespace
