// The window of the prize calculator.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <functional>

#include "LogicaCalculadoraPremios.h"

class QBoxLayout;
class QGridLayout;
class QVBoxLayout;

class frmCalculadoraPremios final : public QDialog {
  public:
    frmCalculadoraPremios(const LogicaEscrutar& escrutar, QWidget* padre);

    /// Esc, the frame's own button and "Cerrar": refused while the service is asked.
    void reject() override;

    /// Shows every field of the logic.
    void Pintar();

  private:
    using PorCategoria = std::array<QLabel*, NCategoriasPremio>;
    using CamposPorCategoria = std::array<QLineEdit*, NCategoriasPremio>;

    void CrearConsulta(QVBoxLayout& caja);
    void CrearSorteo(QBoxLayout& donde);
    void CrearCalculadora(QBoxLayout& donde);
    void CrearPie(QVBoxLayout& caja);
    QLineEdit* CrearTexto(std::string_view nombre, std::string_view ayuda, std::string_view masAncho,
                          std::string& texto);
    void Hacer(const std::function<void()>& accion);
    void PintarTotales();

    LogicaCalculadoraPremios logica;
    QGroupBox *frmPremiosSorteo = nullptr, *fraCalculadora = nullptr;
    QLineEdit *txtDia = nullptr, *txtMes = nullptr, *txtAnio = nullptr, *txtNumeroSorteo = nullptr;
    QComboBox* cboDia = nullptr;
    QLabel *txtRecaudacion = nullptr, *txtBote = nullptr, *txtPremiosTOTAL = nullptr, *txtPorcentajeTOTAL = nullptr;
    PorCategoria txtSorteoPremios{}, txtSorteoAciertos{};
    CamposPorCategoria txtCalculadoraPremios{}, txtCalculadoraEuros{};
    QPushButton *cmdConsultarSorteo = nullptr, *imgVolver = nullptr;
};
