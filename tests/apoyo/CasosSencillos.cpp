#include "CasosFiltros.h"
#include "Evaluadores.h"
#include "FiltrosLiterales.h"

const std::vector<CasoEvaluador>& CasosSencillos() {
    static const std::vector<CasoEvaluador> casos{
        {"ALTOSBAJOS", FiltrarALTOSBAJOS, LiteralALTOSBAJOS,
         [](Dados& s, Condiciones& c) {
             s.Llenar(c.ALTOSBAJOS.Altos);
             s.Llenar(c.ALTOSBAJOS.Bajos);
         }},
        {"DECENAS", FiltrarDECENAS, LiteralDECENAS,
         [](Dados& s, Condiciones& c) {
             for (auto& decena : c.DECENAS.Decena) s.Llenar(decena);
             s.Llenar(c.DECENAS.FigurasDecenas);
         }},
        {"DISTANCIAS", FiltrarDISTANCIAS, LiteralDISTANCIAS,
         [](Dados& s, Condiciones& c) { s.LlenarIntervalos(c.DISTANCIAS.Distancia, -5, 45); }},
        {"HOMOLOGOS", FiltrarHOMOLOGOS, LiteralHOMOLOGOS,
         [](Dados& s, Condiciones& c) { s.Llenar(c.HOMOLOGOS.HomologosAcertados); }},
        {"PARESIMPARES", FiltrarPARESIMPARES, LiteralPARESIMPARES,
         [](Dados& s, Condiciones& c) { s.Llenar(c.PARESIMPARES.ParesActivos); }},
        {"SEGUIDOS", FiltrarSEGUIDOS, LiteralSEGUIDOS,
         [](Dados& s, Condiciones& c) {
             s.Llenar(c.SEGUIDOS.NumerosSeguidos);
             s.Llenar(c.SEGUIDOS.FigurasSeguidos);
         }},
        {"SUMAS", FiltrarSUMAS, LiteralSUMAS,
         [](Dados& s, Condiciones& c) { s.LlenarIntervalos(c.SUMAS.intervalos, 0, 300); }},
        {"TERMINACIONES", FiltrarTERMINACIONES, LiteralTERMINACIONES,
         [](Dados& s, Condiciones& c) {
             for (auto& digito : c.TERMINACIONES.TerminadosEn) s.Llenar(digito);
             s.Llenar(c.TERMINACIONES.FigurasTerminaciones);
             c.TERMINACIONES.SumaMinima = static_cast<uint8_t>(s.UnaDe(3) ? 0 : s.Entre(0, 30));
             c.TERMINACIONES.SumaMaxima = static_cast<uint8_t>(s.UnaDe(3) ? 255 : s.Entre(20, 60));
         }},
        {"EXTERIORESINTERIORES", FiltrarEXTERIORESINTERIORES, LiteralEXTERIORESINTERIORES,
         [](Dados& s, Condiciones& c) { s.Llenar(c.EXTERIORESINTERIORES.ExterioresInterioresActivos); }},
        {"SUPERIORESINFERIORES", FiltrarSUPERIORESINFERIORES, LiteralSUPERIORESINFERIORES,
         [](Dados& s, Condiciones& c) { s.Llenar(c.SUPERIORESINFERIORES.SuperioresInferioresActivos); }},
        {"COLINDANTES", FiltrarCOLINDANTES, LiteralCOLINDANTES,
         [](Dados& s, Condiciones& c) { s.Llenar(c.COLINDANTES.ColindantesAcertados); }},
        {"SUMASPORTRIOS", FiltrarSUMASPORTRIOS, LiteralSUMASPORTRIOS,
         [](Dados& s, Condiciones& c) {
             s.LlenarIntervalos(c.SUMASPORTRIOS.intervalosT1, 0, 130);
             s.LlenarIntervalos(c.SUMASPORTRIOS.intervalosT2, 0, 160);
         }},
    };
    return casos;
}
