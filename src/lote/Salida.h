// Standard output as the result of an order: buffered, and with its failures remembered.
#pragma once

#include <string>
#include <string_view>

class Salida {
  public:
    /// Text as it stands: UTF-8 with LF. After a failure it goes nowhere.
    void Escribir(std::string_view texto);

    /// Writes what is left and closes the descriptor. False if anything got lost; then `Fallo()` says why.
    bool Cerrar();

    /// Whether more text is worth making.
    bool Abierta() const { return fallo_.empty(); }
    const std::string& Fallo() const { return fallo_; }

  private:
    void Volcar();

    std::string pendiente_;
    std::string fallo_;
};
