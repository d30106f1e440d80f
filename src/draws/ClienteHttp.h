// The one HTTP request of the program.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

struct LimitesHttp {
    int64_t BytesMaximos = int64_t{512} << 20; ///< of the body
    std::chrono::milliseconds SinBytes{30000}; ///< longest wait for the next byte
};

/// GET of an address. The body is handed back whatever the HTTP status was. Calls `seguir` about twenty
/// times a second while it waits; false from it ends the transfer. Certificates are verified, against
/// the authorities of the file that the environment variable SSL_CERT_FILE names, if it is set, besides
/// those of the system's folder; a redirection may lead to HTTPS only. On a failure false, with a
/// description of it, and `cuerpo` empty.
bool PedirHttp(const std::string& url, std::string& cuerpo, std::string& fallo, const std::function<bool()>& seguir,
               const LimitesHttp& limites = {});
