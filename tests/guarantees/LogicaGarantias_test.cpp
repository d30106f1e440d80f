#include "LogicaGarantias.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

#include <sys/resource.h>

#include "Boleto.h"
#include "CalcularSistema.h"
#include "GarantiasLiteral.h"
#include "Sistemas.h"

namespace {

constexpr const char* TextoParada = "Proceso de cálculo de porcentajes/garantías detenido";

// A calculated base of the first numbers, whose final system is a random one.
struct Ventana : Guion {
    CarpetaTemporal carpeta;

    explicit Ventana(int base, int apuestas = 0) {
        entorno.CarpetaInformes = carpeta.Ruta();
        MarcarHasta(base);
        MarcarDigitos({1});
        EXPECT_TRUE(CalcularSistema(sesion, entorno));
        Azar azar;
        azar.Sembrar(21);
        if (apuestas > 0) ::PonerSistema(*this, azar, apuestas, 1000);
        Turnos = 0;
    }
    std::string Informe(int k) { return LeerTodo(Ruta(k)); }
    std::string Ruta(int k) { return carpeta.Ruta("TOMBOLERA_GARANTIAS_si" + std::to_string(k) + ".txt"); }
    Textos Escritos() {
        Textos nombres;
        for (int k = 0; k <= 6; ++k)
            if (std::filesystem::exists(Ruta(k))) nombres.push_back("si" + std::to_string(k));
        return nombres;
    }
};

Textos Lineas(const std::string& texto) {
    Textos lineas;
    std::istringstream entrada(texto);
    for (std::string linea; std::getline(entrada, linea);) {
        if (linea.ends_with('\r')) linea.pop_back();
        lineas.push_back(linea);
    }
    return lineas;
}

} // namespace

TEST(LogicaGarantias, AlAbrirDiceLosTamanios) {
    Ventana v(12);
    const LogicaGarantias logica(v.sesion, v.entorno);
    EXPECT_EQ(logica.lblTitulo[0], "Garantías sobre el SISTEMA TOTAL (924 Apuestas)");
    EXPECT_EQ(logica.lblTitulo[1], "Garantías sobre el SISTEMA IMPORTADO");
    EXPECT_EQ(logica.lblTitulo[2], "Garantías sobre el SISTEMA CONDICIONADO (924 Apuestas)");
    EXPECT_EQ(logica.optHabilitado, (std::array{true, false, true}));
    EXPECT_EQ(logica.lblTituloApuestas, "Apuestas actuales : 924");
    EXPECT_EQ(LogicaGarantias::TextoAciertos(0), "Todas");
    EXPECT_EQ(LogicaGarantias::TextoAciertos(6), "si 6 Aciertos");
}

TEST(LogicaGarantias, UnSistemaCompletoAseguraElSeis) {
    Ventana v(8);
    LogicaGarantias logica(v.sesion, v.entorno);
    EXPECT_TRUE(logica.Calcular());
    EXPECT_EQ(logica.resultados.lblApu[6], "28");
    EXPECT_EQ(logica.resultados.lblPor[6], "100.000% 6 si 6");
    EXPECT_EQ(logica.resultados.lblde[6][6], "1-1");
    EXPECT_EQ(logica.resultados.lblde[6][5], "12-12");
    EXPECT_EQ(logica.resultados.lblde[5][5], "");
    EXPECT_EQ(logica.resultados.txtResumen,
              "100.000% 6 si 6  1-1 de 6, 12-12 de 5, 15-15 de 4, 0-0 de 3, 0-0 de 2, 0-0 de 1, 0-0 de 0\r\n"
              "100.000% 5 si 6\r\n100.000% 4 si 6\r\n100.000% 3 si 6\r\n100.000% 2 si 6\r\n100.000% 1 si 6\r\n"
              "100.000% 0 si 6\r\n");
    EXPECT_EQ(v.sesion.trabajo.TablaApuestas.Apuestas(), 0) << "the measure does not keep the table";
    EXPECT_EQ(v.sesion.trabajo.ApuestasCondicionadas.Apuestas(), 28);
    EXPECT_FALSE(logica.Corriendo);
}

TEST(LogicaGarantias, LasFilasDeMasAciertosQueNumerosSeOcultan) {
    Ventana v(8, 3);
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarAciertos(1);
    EXPECT_EQ(logica.Visibles(), (std::array{true, true, false, false, false, false, false}));
    EXPECT_TRUE(logica.Calcular());
    const Textos lineas = Lineas(logica.resultados.txtResumen);
    ASSERT_EQ(lineas.size(), 2u);
    EXPECT_TRUE(lineas[1].starts_with("100.000% 0 si 1"));
    EXPECT_TRUE(logica.InformeGarantias(1));
    EXPECT_EQ(v.Informes, Textos{v.Ruta(1)});
    logica.CambiarAciertos(4);
    EXPECT_EQ(logica.resultados.txtResumen, "") << "other hits, other results";
    logica.CambiarTipo(SobreLoCondicionado);
    EXPECT_EQ(logica.cboTipoGarantias, SeisAciertos);
    EXPECT_FALSE(logica.cboTipoGarantiasVisible());
    logica.CambiarTipo(SobreLoImportado);
    EXPECT_EQ(logica.optTipoGarantias, SobreLoCondicionado) << "a disabled measure";
}

TEST(LogicaGarantias, SobreElCondicionadoMideSusApuestas) {
    Ventana v(10, 7);
    EstadoTrabajo& trabajo = v.sesion.trabajo;
    Azar azar;
    azar.Sembrar(5);
    PonerCondicionadas(v, azar, 40);
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarTipo(SobreLoCondicionado);
    EXPECT_TRUE(logica.Calcular());
    std::vector<Numeros> candidatas;
    for (const Apuesta& apuesta : Apuestas(trabajo.ApuestasCondicionadas)) candidatas.push_back(apuesta);
    TablaGarantias esperada = GarantiasLiteral(candidatas, trabajo.ApuestasReducidas); // the base is 1 to 10
    esperada.PorcentajeClase = logica.resultados.tabla.PorcentajeClase;
    EXPECT_EQ(logica.resultados.tabla, esperada);
    EXPECT_NEAR(logica.resultados.tabla.PorcentajeClase[0], 100, 1e-9);
}

TEST(LogicaGarantias, LoImportadoSinCalcularEsSuPropioCondicionado) {
    Ventana v(7);
    EstadoTrabajo& trabajo = v.sesion.trabajo;
    trabajo.cboTipoCombinacion = PronosticoDesdeArchivo;
    trabajo.ApuestasImportadas = trabajo.ApuestasReducidas;
    trabajo.NApuestasImportadas = trabajo.Contador.Condicionadas = 7;
    trabajo.ApuestasCondicionadas.Vaciar();
    LogicaGarantias logica(v.sesion, v.entorno);
    EXPECT_EQ(logica.lblTitulo[1], "Garantías sobre el SISTEMA IMPORTADO (7 Apuestas)");
    logica.CambiarTipo(SobreLoImportado);
    EXPECT_TRUE(logica.Calcular());
    EXPECT_EQ(logica.resultados.lblApu[6], "7");
}

// Columns: candidates 10, percentage 16, blanks for the levels above, cells of 13.
TEST(LogicaGarantias, ElInformeTieneColumnasFijas) {
    ResultadosGarantias resultados;
    resultados.tabla.CasosClase = {0, 0, 0, 0, 5, 0, 1};
    for (int c : {6, 4})
        for (int h = 0; h <= c; ++h) {
            resultados.tabla.MinimoBets[c][h] = h;
            resultados.tabla.MaximoBets[c][h] = h == 2 ? 1234567 : 999999;
        }
    std::array<bool, 7> todas;
    todas.fill(true);
    resultados.Mostrar(6, 6, todas);
    const Textos lineas = Lineas(resultados.Informe(todas));
    ASSERT_EQ(lineas.size(), 8u) << "the last one is empty";
    EXPECT_EQ(lineas[0], "1         016.667% 6 si 6      6-999999     5-999999     4-999999     3-999999     2-      "
                         "     1-999999     0-999999");
    EXPECT_EQ(lineas[1], "0         016.667% 5 si 6 " + std::string(13, ' '));
    EXPECT_EQ(lineas[2], "5         100.000% 4 si 6 " + std::string(26, ' ') +
                             "     4-999999     3-999999     2-           1-999999     0-999999");
    EXPECT_EQ(lineas[6].size(), 26u + 78u);
    EXPECT_EQ(ResultadosGarantias().Informe({true, true}),
              std::string(26 + 65, ' ') + "\n" + std::string(26 + 78, ' ') + "\n\n");
    EXPECT_TRUE(resultados.TextoTabla({true, true, true})
                    .starts_with("Apuestas\tPorcentajes\tde 2\tde 1\tde 0\n"
                                 "0\t100.000% 2 si 6\t\t\t\n"))
        << resultados.TextoTabla({true, true, true});
}

TEST(LogicaGarantias, TodasEscribeSeisInformesYEnsenaElUltimo) {
    Ventana v(9, 6);
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarAciertos(TodasLasGarantias);
    EXPECT_TRUE(logica.Calcular());
    EXPECT_EQ(v.Escritos(), (Textos{"si1", "si2", "si3", "si4", "si5", "si6"}));
    EXPECT_TRUE(v.Informe(3).find("% 3 si 3") != std::string::npos);
    EXPECT_EQ(Lineas(v.Informe(3)).size(), 5u);
    EXPECT_TRUE(v.Informe(3).ends_with("\r\n\r\n"));
    EXPECT_EQ(logica.cboTipoGarantias, TodasLasGarantias);
    EXPECT_TRUE(logica.resultados.lblPor[6].ends_with("% 6 si 6"));
    EXPECT_EQ(v.Informes, Textos{});
    EXPECT_TRUE(logica.InformeGarantias(1));
    EXPECT_EQ(v.Informes, (Textos{v.Ruta(6), v.Ruta(5), v.Ruta(4), v.Ruta(3), v.Ruta(2), v.Ruta(1)}));
}

TEST(LogicaGarantias, ParadaDejaLaTablaEnBlancoYLoDice) {
    Ventana v(14, 50);
    LogicaGarantias logica(v.sesion, v.entorno);
    bool corria = false;
    v.EnTurno(2, [&] {
        corria = logica.Corriendo && logica.picVentanaGarantias && !logica.PuedeCerrar() && !logica.Libre();
        EXPECT_FALSE(logica.Calcular()) << "one run at a time";
        logica.CambiarAciertos(3);
        logica.Detener();
    });
    EXPECT_TRUE(logica.Calcular());
    EXPECT_TRUE(corria);
    EXPECT_EQ(logica.resultados.txtResumen, TextoParada);
    EXPECT_EQ(logica.resultados.lblApu[6], "");
    EXPECT_EQ(logica.cboTipoGarantias, SeisAciertos);
    EXPECT_TRUE(logica.PuedeCerrar());
    EXPECT_TRUE(logica.InformeGarantias(0));
    EXPECT_EQ(Lineas(v.Informe(6))[0], std::string(26, ' '));
    EXPECT_TRUE(logica.Calcular()) << "the stop is forgotten";
    EXPECT_NE(logica.resultados.lblApu[6], "");
}

// C(14,1) and C(14,2) are too few for a turn; the other four quit at their first one.
TEST(LogicaGarantias, UnaParadaEnTodasNoRompeLaSerie) {
    Ventana v(14, 50);
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarAciertos(TodasLasGarantias);
    v.EnTurno(1, [&] {
        EXPECT_EQ(logica.cboTipoGarantias, 3);
        logica.Detener();
    });
    EXPECT_TRUE(logica.Calcular());
    EXPECT_EQ(v.Turnos, 4) << "each at its first turn";
    EXPECT_EQ(v.Escritos().size(), 6u);
    EXPECT_NE(v.Informe(2).find("100.000% 0 si 2"), std::string::npos);
    for (int k = 3; k <= 6; ++k) EXPECT_EQ(v.Informe(k).find('%'), std::string::npos) << k;
    EXPECT_EQ(logica.resultados.txtResumen, TextoParada);
}

TEST(LogicaGarantias, UnaCarpetaQueNoSeDejaSeDiceUnaVez) {
    Ventana v(7, 3);
    v.entorno.CarpetaInformes = v.carpeta.Ruta("no/hay");
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarAciertos(TodasLasGarantias);
    EXPECT_FALSE(logica.Calcular());
    ASSERT_EQ(v.Cajas.size(), 1u);
    EXPECT_TRUE(v.Cajas[0].starts_with("[X] ERROR AL GENERAR EL FICHERO EN EL BLOC DE NOTAS (")) << v.Cajas[0];
    EXPECT_NE(logica.resultados.lblApu[6], "") << "what was measured stays";
    EXPECT_FALSE(logica.InformeGarantias(1));
    EXPECT_EQ(v.Cajas.size(), 2u);
    EXPECT_EQ(v.Informes, Textos{});
}

TEST(LogicaGarantias, LasExtendidasOcupanLaVentanaHastaQueSeCierran) {
    Ventana v(9, 4);
    LogicaGarantias logica(v.sesion, v.entorno);
    std::string espera;
    v.EnTurno(1, [&] { espera = logica.lblEspera; });
    EXPECT_TRUE(logica.GarantiasExtendidas());
    EXPECT_EQ(espera, "Calculando garantías (x si 2) ...");
    EXPECT_TRUE(logica.txtMiniGarantias.starts_with("DETALLE DE MINI GARANTIAS\r\n"));
    EXPECT_FALSE(logica.Libre());
    EXPECT_FALSE(logica.Calcular());
    logica.CerrarMiniGarantias();
    EXPECT_TRUE(logica.Calcular());

    v.EnTurno(v.Turnos + 3, [&] { logica.Detener(); });
    EXPECT_TRUE(logica.GarantiasExtendidas());
    EXPECT_EQ(logica.txtMiniGarantias, "Proceso de cálculo de mini garantías detenido");
}

#if !defined(__SANITIZE_ADDRESS__)
// A limit on the address space, a little above what is in use, while it lives.
class LimiteDeMemoria {
  public:
    LimiteDeMemoria() {
        getrlimit(RLIMIT_AS, &antes_);
        long paginas = 0;
        if (FILE* estado = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(estado, "%ld", &paginas) != 1) paginas = 0;
            std::fclose(estado);
        }
        rlimit nuevo = antes_;
        nuevo.rlim_cur = static_cast<rlim_t>(paginas) * 4096 + (8 << 20);
        setrlimit(RLIMIT_AS, &nuevo);
    }
    ~LimiteDeMemoria() { setrlimit(RLIMIT_AS, &antes_); }

  private:
    rlimit antes_{};
};

TEST(LogicaGarantias, SinMemoriaQuedaLoQueHabia) {
    Ventana v(30, 200);
    v.MarcarHasta(49);
    LeerBase(v.sesion.trabajo);
    v.sesion.trabajo.Contador.Reducidas = 200;
    LogicaGarantias logica(v.sesion, v.entorno);
    logica.CambiarAciertos(TodasLasGarantias);
    logica.resultados.txtResumen = "lo de antes";
    {
        const LimiteDeMemoria limite;
        EXPECT_FALSE(logica.Calcular());
        EXPECT_FALSE(logica.GarantiasExtendidas());
    }
    EXPECT_EQ(v.Cajas, (Textos{"[X] ERROR: no hay memoria suficiente", "[X] ERROR: no hay memoria suficiente"}));
    EXPECT_EQ(logica.resultados.txtResumen, "lo de antes");
    EXPECT_EQ(logica.cboTipoGarantias, TodasLasGarantias);
    EXPECT_FALSE(logica.picVisorMiniGarantias);
    EXPECT_TRUE(logica.Libre());
    EXPECT_TRUE(logica.Calcular());
}
#endif
