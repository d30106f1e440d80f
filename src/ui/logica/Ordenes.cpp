#include "Ordenes.h"

const std::array<std::string_view, 4> NombresMenus{"&Archivo", "&Datos", "&Utilidades", "A&yuda"};

const std::array<EntradaMenu, 20> EntradasMenu{{
    {Orden::Nuevo, "menuNuevo", "&Archivo", "&Nuevo fichero XML", "Ctrl+N"},
    {Orden::Abrir, "menuAbrir", "&Archivo", "&Abrir fichero XML", "Ctrl+O"},
    {Orden::Guardar, "menuGuardar", "&Archivo", "&Guardar fichero XML", "Ctrl+S"},
    {Orden::Salir, "menuSalir", "&Archivo", "&Salir", "Ctrl+Q"},
    {Orden::Estadisticas, "menuEstadisticas", "&Datos", "&Estadísticas de Sorteos", ""},
    {Orden::VerResumenFiltros, "menuVerResumenFiltros", "&Datos", "Ver &Resumen de Filtros y Base", ""},
    {Orden::InformeApuestasEliminadas, "menuInformeApuestasEliminadas", "&Datos", "Ver &Informe Apuestas Eliminadas",
     ""},
    {Orden::VerApuestas, "menuVerApuestas", "&Datos", "Ver &Apuestas", ""},
    {Orden::VisualizarArchivo, "menuVisualizarArchivo", "&Utilidades", "&Visualizar Archivo", ""},
    {Orden::EscrutinioApuestas, "menuEscrutinioApuestas", "&Utilidades", "Realizar &Escrutinios", ""},
    {Orden::MultiEscrutinioMultiFichero, "menuMultiEscrutinioMultiFichero", "&Utilidades",
     "&MultiEscrutinio MultiFichero", ""},
    {Orden::MultiEscrutinioEstadistico, "menuMultiEscrutinioEstadistico", "&Utilidades", "MultiEscrutinio Es&tadístico",
     ""},
    {Orden::Algebra, "menuAlgebra", "&Utilidades", "&Algebra de Combinaciones", ""},
    {Orden::Garantias, "menuGarantias", "&Utilidades", "&Garantías", ""},
    {Orden::SistemasPropios, "menusSistemasPropios", "&Utilidades", "&Sistemas Propios", ""},
    {Orden::GeneradorAleatoriasXNumero, "menuGeneradorAleatoriasXNumero", "&Utilidades",
     "Generador Apuestas Aleatorias por &Números", ""},
    {Orden::GeneradorAleatoriasXPorcentaje, "menuGeneradorAleatoriasXPorcentaje", "&Utilidades",
     "Generador Apuestas Aleatorias por &Porcentajes", ""},
    {Orden::CoeficienteRentabilidad, "menuCoeficienteRentabilidad", "&Utilidades", "Utilidad &Coeficiente Rentabilidad",
     ""},
    {Orden::AyudaOnline, "menuAyudaOnline", "A&yuda", "Ayuda &Online", "F1"},
    {Orden::AcercaDe, "menuAcercaDe", "A&yuda", "&Acerca de TOMBOLERA ...", ""},
}};

const std::array<EntradaBarra, 7> lblMenu{{
    {Orden::Nuevo, "NUEVO", "Nuevo fichero XML (Ctrl+N)", "nuevo", ""},
    {Orden::Abrir, "ABRIR", "Abrir fichero XML (Ctrl+O)", "abrir", ""},
    {Orden::Guardar, "GUARDAR", "Guardar fichero XML (Ctrl+S)", "guardar", ""},
    {Orden::ValidarOnLine, "VALIDAR ON LINE", "Validar ON LINE las apuestas", "validar", ""},
    {Orden::CalculoPrueba, "Cálculo de Prueba", "Calcular", "calcular", "F5"},
    {Orden::Analisis, "Análisis", "Análisis de las apuestas", "analisis", "F6"},
    {Orden::CalculoDefinitivo, "Cálculo Definitivo", "Cálculo con grabación de apuestas", "definitivo", "F7"},
}};
