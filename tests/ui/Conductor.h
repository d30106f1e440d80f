// Somebody who tries everything: uses each control of a window, and of the windows that it opens.
//
//     Conductor conductor;
//     conductor.Hacer([&] { accion->trigger(); });        // whatever opens is used and closed
//     EXPECT_EQ(conductor.SinUsar(), std::set<std::string>{});
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

class Conductor {
  public:
    Conductor();

    /// Controls that are left alone, as "window control", unless the test works them itself and says so.
    std::set<std::string> Intocables;

    /// Runs what may open modal windows. Each is used as below, once until `Olvidar`, and closed. A run that
    /// takes long is stopped with its own button.
    void Hacer(const std::function<void()>& accion);

    /// Uses every control of the window that can be: boxes are checked and checked back, fields typed in,
    /// lists gone through, cells and charts worked by keys, buttons pressed. Controls that come to life on the
    /// way are used too.
    void Usar(QWidget& ventana);

    /// Closes it by its own ways.
    void Cerrar(QWidget& ventana);

    void Anotar(const QWidget& control);

    /// Windows that have been used are used again when they open.
    void Olvidar() { conocidas_.clear(); }

    /// Names of the windows that were used, and the controls that were seen and never used.
    const std::set<std::string>& Ventanas() const { return ventanas_; }
    std::set<std::string> SinUsar() const;
    /// Windows that none of their own ways closed.
    const std::set<std::string>& Rebeldes() const { return rebeldes_; }

  private:
    void Vigilar();
    void Atender();
    void Detener();
    std::vector<QPointer<QWidget>> Usables(QWidget& ventana);
    void UsarLosDe(QWidget& ventana, const std::vector<QPointer<QWidget>>& controles, std::set<const QWidget*>& hechos);
    bool UsarControl(QWidget& control);

    std::shared_ptr<int> vivo_ = std::make_shared<int>(0); ///< gone with the driver
    std::vector<QPointer<QWidget>> abiertas_;              ///< being used, the last one in front
    std::set<std::string> conocidas_, ventanas_, vistos_, usados_, rebeldes_;
    QElapsedTimer pulsado_; ///< since the last press
};
