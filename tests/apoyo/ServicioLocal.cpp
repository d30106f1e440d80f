#include "ServicioLocal.h"

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <stdexcept>
#include <thread>

#include <httplib.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include "Guion.h"

namespace {

using Clave = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificado = std::unique_ptr<X509, decltype(&X509_free)>;

constexpr long Hora = 3600;

void Exigir(bool bien, const char* que) {
    if (!bien) throw std::runtime_error(que);
}

void PonerServidor(X509* certificado, const char* servidor) {
    X509_EXTENSION* extension = X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, servidor);
    Exigir(extension != nullptr && X509_add_ext(certificado, extension, -1) == 1, "subjectAltName");
    X509_EXTENSION_free(extension);
}

// Signed by itself, so that it is its own authority.
Certificado CrearCertificado(EVP_PKEY* clave, const CertificadoLocal& como) {
    Certificado certificado(X509_new(), X509_free);
    X509* x = certificado.get();
    X509_set_version(x, X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(x), 1);
    X509_gmtime_adj(X509_getm_notBefore(x), -48 * Hora);
    X509_gmtime_adj(X509_getm_notAfter(x), como.Caducado ? -24 * Hora : 24 * Hora);
    const std::string nombre = "servicio de pruebas";
    X509_NAME_add_entry_by_txt(X509_get_subject_name(x), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(nombre.data()), static_cast<int>(nombre.size()),
                               -1, 0);
    X509_set_issuer_name(x, X509_get_subject_name(x));
    X509_set_pubkey(x, clave);
    PonerServidor(x, como.Propio ? "IP:127.0.0.1" : "DNS:otro.invalid");
    Exigir(X509_sign(x, clave, EVP_sha256()) != 0, "X509_sign");
    return certificado;
}

void GuardarPEM(const std::string& ruta, X509* certificado) {
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> fichero(std::fopen(ruta.c_str(), "w"), std::fclose);
    Exigir(fichero != nullptr && PEM_write_X509(fichero.get(), certificado) == 1, "PEM_write_X509");
}

} // namespace

struct ServicioLocal::Motor {
    CarpetaTemporal carpeta;
    bool conocido = false;
    std::unique_ptr<httplib::Server> servidor;
    std::string direccion;
    std::thread hilo;

    mutable std::mutex cerrojo; // of what follows
    std::condition_variable aviso;
    bool cerrando = false;
    std::shared_ptr<const RespuestaLocal> respuesta = std::make_shared<RespuestaLocal>();
    std::vector<std::string> peticiones;

    void Crear(const CertificadoLocal& como) {
        if (!como.Cifrado) {
            servidor = std::make_unique<httplib::Server>();
            return;
        }
        const Clave clave(EVP_EC_gen("P-256"), EVP_PKEY_free);
        Exigir(clave != nullptr, "EVP_EC_gen");
        const Certificado certificado = CrearCertificado(clave.get(), como);
        const std::string ruta = carpeta.Ruta("autoridad.pem");
        GuardarPEM(ruta, certificado.get());
        conocido = como.Conocido;
        if (conocido) setenv("SSL_CERT_FILE", ruta.c_str(), 1);
        servidor = std::make_unique<httplib::SSLServer>(certificado.get(), clave.get());
    }

    void Escuchar(bool cifrado) {
        servidor->set_keep_alive_max_count(1);
        servidor->Get(".*", [this](const httplib::Request& p, httplib::Response& r) { Contestar(p, r); });
        const int puerto = servidor->bind_to_any_port("127.0.0.1");
        Exigir(puerto > 0, "bind_to_any_port");
        direccion = (cifrado ? "https://127.0.0.1:" : "http://127.0.0.1:") + std::to_string(puerto);
        hilo = std::thread([this] { servidor->listen_after_bind(); });
        while (!servidor->is_running()) std::this_thread::yield();
    }

    // False once the service closes.
    bool Esperar(std::chrono::milliseconds pausa) {
        std::unique_lock bloqueo(cerrojo);
        return !aviso.wait_for(bloqueo, pausa, [this] { return cerrando; });
    }

    std::shared_ptr<const RespuestaLocal> Anotar(const std::string& peticion) {
        const std::lock_guard bloqueo(cerrojo);
        peticiones.push_back(peticion);
        return respuesta;
    }

    void Contestar(const httplib::Request& peticion, httplib::Response& salida) {
        const auto r = Anotar(peticion.target);
        salida.status = r->Estado;
        if (r->Callar) Esperar(std::chrono::hours(1));
        if (!r->Redireccion.empty()) return salida.set_redirect(r->Redireccion);
        if (r->Cuerpo.empty()) return;
        salida.set_content_provider(r->Cuerpo.size(), "text/xml",
                                    [this, r](size_t desde, size_t quedan, httplib::DataSink& destino) {
                                        if (desde >= r->CortarTras || !Esperar(r->Pausa)) return false;
                                        const size_t largo = std::min({quedan, r->Trozo, r->CortarTras - desde});
                                        return destino.write(r->Cuerpo.data() + desde, largo);
                                    });
    }
};

ServicioLocal::ServicioLocal(const CertificadoLocal& certificado) : motor_(std::make_unique<Motor>()) {
    // Whatever the machine goes through for the rest of the world.
    setenv("no_proxy", "127.0.0.1", 1);
    motor_->Crear(certificado);
    motor_->Escuchar(certificado.Cifrado);
}

ServicioLocal::~ServicioLocal() {
    {
        const std::lock_guard bloqueo(motor_->cerrojo);
        motor_->cerrando = true;
    }
    motor_->aviso.notify_all();
    motor_->servidor->stop();
    motor_->hilo.join();
    if (motor_->conocido) unsetenv("SSL_CERT_FILE");
}

const std::string& ServicioLocal::Direccion() const {
    return motor_->direccion;
}

void ServicioLocal::Responder(RespuestaLocal respuesta) {
    auto nueva = std::make_shared<const RespuestaLocal>(std::move(respuesta));
    const std::lock_guard bloqueo(motor_->cerrojo);
    motor_->respuesta = std::move(nueva);
}

std::vector<std::string> ServicioLocal::Peticiones() const {
    const std::lock_guard bloqueo(motor_->cerrojo);
    return motor_->peticiones;
}

void ServicioLocal::Conectar(Entorno& entorno, const LimitesHttp& limites) const {
    entorno.Servicio = Direccion();
    entorno.PedirHttp = [&entorno, limites](const std::string& url, std::string& cuerpo, std::string& fallo) {
        const auto seguir = [&entorno] {
            entorno.CederTurno();
            return true;
        };
        return PedirHttp(url, cuerpo, fallo, seguir, limites);
    };
}
