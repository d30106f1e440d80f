// The windows that are open, each with the routine that paints it from its fields. A long job that
// gives the event loop a turn has all of them painted first.
#pragma once

#include <QDialog>

#include <functional>

/// Keeps `pintar` among the open windows while it lives.
class Pintor {
  public:
    explicit Pintor(std::function<void()> pintar);
    ~Pintor();
    Pintor(const Pintor&) = delete;
    Pintor& operator=(const Pintor&) = delete;

  private:
    friend void PintarAbiertas();
    std::function<void()> pintar_;
};

/// Paints every open window from its fields, the first opened first.
void PintarAbiertas();

/// Runs a dialog modally, painted during long jobs as well; its result.
int MostrarModal(
    QDialog& dialogo, std::function<void()> pintar = [] {});
