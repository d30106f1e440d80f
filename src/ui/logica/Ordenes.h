// The commands of the main window: how menus and command bar show them.
#pragma once

#include <array>
#include <string_view>

enum class Orden {
    Nuevo,
    Abrir,
    Guardar,
    Salir,
    Estadisticas,
    VerResumenFiltros,
    InformeApuestasEliminadas,
    VerApuestas,
    VisualizarArchivo,
    EscrutinioApuestas,
    MultiEscrutinioMultiFichero,
    MultiEscrutinioEstadistico,
    Algebra,
    Garantias,
    SistemasPropios,
    GeneradorAleatoriasXNumero,
    GeneradorAleatoriasXPorcentaje,
    CoeficienteRentabilidad,
    AyudaOnline,
    AcercaDe,
    ValidarOnLine,
    CalculoPrueba,
    Analisis,
    CalculoDefinitivo
};

/// An entry of a menu. "&" stands before the mnemonic letter.
struct EntradaMenu {
    Orden orden;
    std::string_view nombre; ///< of the control
    std::string_view Menu;
    std::string_view Texto;
    std::string_view Atajo; ///< keys, empty for none
};

/// An entry of the command bar `lblMenu`; its position is the control's index.
struct EntradaBarra {
    Orden orden;
    std::string_view Texto;
    std::string_view Consejo; ///< hint
    std::string_view Icono;
    std::string_view Atajo; ///< keys that no menu entry shows, empty for none
};

extern const std::array<std::string_view, 4> NombresMenus;
extern const std::array<EntradaMenu, 20> EntradasMenu;
extern const std::array<EntradaBarra, 7> lblMenu;
