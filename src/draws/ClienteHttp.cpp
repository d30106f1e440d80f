#include "ClienteHttp.h"

#include <cstdlib>
#include <memory>
#include <new>

#include <curl/curl.h>
#include <fmt/format.h>

namespace {

using Reloj = std::chrono::steady_clock;

constexpr int PausaTurnos = 50; // ms between two turns of the event loop

struct Descarga {
    std::string& cuerpo;
    const LimitesHttp& limites;
    Reloj::time_point ultimo = Reloj::now(); // last time that something came
    std::string fallo{};
};

// What libcurl calls must not throw; fewer bytes taken than given end the transfer.
size_t TomarCuerpo(const char* datos, size_t, size_t largo, void* destino) {
    auto& descarga = *static_cast<Descarga*>(destino);
    descarga.ultimo = Reloj::now();
    if (static_cast<int64_t>(descarga.cuerpo.size() + largo) > descarga.limites.BytesMaximos) {
        descarga.fallo =
            fmt::format("la respuesta es demasiado grande, pasa de {} bytes", descarga.limites.BytesMaximos);
        return 0;
    }
    try {
        descarga.cuerpo.append(datos, largo);
    } catch (const std::bad_alloc&) {
        descarga.fallo = "no hay memoria suficiente";
        return 0;
    }
    return largo;
}

size_t TomarCabecera(const char*, size_t, size_t largo, void* destino) {
    static_cast<Descarga*>(destino)->ultimo = Reloj::now();
    return largo;
}

std::string DescripcionDe(CURLcode codigo) {
    switch (codigo) {
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
        return "la dirección del servicio no es válida o no es segura";
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return "no se encuentra el servidor";
    case CURLE_COULDNT_CONNECT:
        return "no se puede conectar con el servidor";
    case CURLE_PEER_FAILED_VERIFICATION:
        return "el certificado del servidor no es válido";
    case CURLE_SSL_CACERT_BADFILE:
        return "no se puede leer el fichero de autoridades certificadoras";
    case CURLE_SSL_CONNECT_ERROR:
        return "no se puede establecer una conexión segura";
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_GOT_NOTHING:
        return "la conexión se ha cortado";
    case CURLE_TOO_MANY_REDIRECTS:
        return "el servidor redirige demasiadas veces";
    case CURLE_OPERATION_TIMEDOUT:
        return "el servidor no contesta";
    case CURLE_OUT_OF_MEMORY:
        return "no hay memoria suficiente";
    default:
        return curl_easy_strerror(codigo);
    }
}

void Preparar(CURL* peticion, const std::string& url, Descarga& descarga) {
    curl_easy_setopt(peticion, CURLOPT_URL, url.c_str());
    curl_easy_setopt(peticion, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(peticion, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(peticion, CURLOPT_REDIR_PROTOCOLS_STR, "https");
    curl_easy_setopt(peticion, CURLOPT_MAXREDIRS, 10L);
    curl_easy_setopt(peticion, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(peticion, CURLOPT_SSL_VERIFYHOST, 2L);
    if (const char* autoridades = std::getenv("SSL_CERT_FILE"); autoridades != nullptr && *autoridades != '\0')
        curl_easy_setopt(peticion, CURLOPT_CAINFO, autoridades);
    curl_easy_setopt(peticion, CURLOPT_WRITEFUNCTION, TomarCuerpo);
    curl_easy_setopt(peticion, CURLOPT_WRITEDATA, &descarga);
    curl_easy_setopt(peticion, CURLOPT_HEADERFUNCTION, TomarCabecera);
    curl_easy_setopt(peticion, CURLOPT_HEADERDATA, &descarga);
}

// One transfer by turns, which leaves the set again whatever happens.
class Transferencia {
  public:
    Transferencia() : peticion_(curl_easy_init(), curl_easy_cleanup), conjunto_(curl_multi_init(), curl_multi_cleanup) {
        if (peticion_ == nullptr || conjunto_ == nullptr) throw std::bad_alloc();
    }
    ~Transferencia() { curl_multi_remove_handle(conjunto_.get(), peticion_.get()); }
    Transferencia(const Transferencia&) = delete;
    Transferencia& operator=(const Transferencia&) = delete;

    void Correr(const std::string& url, Descarga& descarga, const std::function<bool()>& seguir) {
        Preparar(peticion_.get(), url, descarga);
        curl_multi_add_handle(conjunto_.get(), peticion_.get());
        int enCurso = 1;
        for (;;) {
            if (curl_multi_perform(conjunto_.get(), &enCurso) != CURLM_OK) descarga.fallo = "error de la red";
            if (enCurso == 0 || !descarga.fallo.empty()) break;
            // Right after what had come was taken: a long turn of the event loop is no silence.
            if (Reloj::now() - descarga.ultimo > descarga.limites.SinBytes) descarga.fallo = "el servidor no contesta";
            curl_multi_poll(conjunto_.get(), nullptr, 0, PausaTurnos, nullptr);
            if (!seguir()) descarga.fallo = "se ha interrumpido";
        }
        if (descarga.fallo.empty()) descarga.fallo = Final();
    }

  private:
    // Empty for a transfer that ended well.
    std::string Final() {
        int quedan = 0;
        const CURLMsg* aviso = curl_multi_info_read(conjunto_.get(), &quedan);
        if (aviso == nullptr) return "error de la red";
        return aviso->data.result == CURLE_OK ? "" : DescripcionDe(aviso->data.result);
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> peticion_;
    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> conjunto_;
};

} // namespace

bool PedirHttp(const std::string& url, std::string& cuerpo, std::string& fallo, const std::function<bool()>& seguir,
               const LimitesHttp& limites) {
    static const CURLcode preparado = curl_global_init(CURL_GLOBAL_DEFAULT);
    cuerpo.clear();
    Descarga descarga{cuerpo, limites};
    if (preparado == CURLE_OK)
        Transferencia().Correr(url, descarga, seguir);
    else
        descarga.fallo = DescripcionDe(preparado);
    fallo = descarga.fallo;
    if (fallo.empty()) return true;
    cuerpo = {};
    return false;
}
