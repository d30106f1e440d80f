#include "FicheroAtomico.h"

#include <csignal>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "Ficheros.h"
#include "Guion.h"

namespace {

size_t Entradas(const std::string& carpeta) {
    const std::filesystem::directory_iterator entradas(carpeta);
    return static_cast<size_t>(std::distance(begin(entradas), end(entradas)));
}

// No file grows beyond these bytes while it lives.
class LimiteDeFichero {
  public:
    explicit LimiteDeFichero(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &antes_);
        const rlimit nuevo{bytes, antes_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nuevo);
    }
    ~LimiteDeFichero() { setrlimit(RLIMIT_FSIZE, &antes_); }

  private:
    rlimit antes_{};
};

} // namespace

TEST(FicheroAtomico, SoloAlConfirmarOcupaSuSitio) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("a.txt");
    EscribirTodo(ruta, "viejo");
    chmod(ruta.c_str(), 0640);
    {
        FicheroAtomico abandonado;
        ASSERT_TRUE(abandonado.Abrir(ruta) && abandonado.Escribir("a medias") && abandonado.Asentar());
        EXPECT_EQ(LeerTodo(ruta), "viejo");
    }
    EXPECT_EQ(LeerTodo(ruta), "viejo");
    EXPECT_EQ(Entradas(carpeta.Ruta()), 1u);

    FicheroAtomico fichero;
    ASSERT_TRUE(fichero.Abrir(ruta) && fichero.Escribir("nue") && fichero.Escribir("vo") && fichero.Confirmar());
    EXPECT_EQ(LeerTodo(ruta), "nuevo");
    EXPECT_EQ(Entradas(carpeta.Ruta()), 1u);
    struct stat datos {};
    ASSERT_EQ(stat(ruta.c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 0777, 0640u);
}

TEST(FicheroAtomico, UnEnlaceSigueSiendoEnlace) {
    const CarpetaTemporal carpeta;
    std::filesystem::create_directory(carpeta.Ruta("otra"));
    EscribirTodo(carpeta.Ruta("otra/real"), "viejo");
    std::filesystem::create_symlink("otra/real", carpeta.Ruta("enlace"));
    FicheroAtomico fichero;
    ASSERT_TRUE(fichero.Abrir(carpeta.Ruta("enlace")) && fichero.Escribir("nuevo") && fichero.Confirmar());
    EXPECT_TRUE(std::filesystem::is_symlink(carpeta.Ruta("enlace")));
    EXPECT_EQ(LeerTodo(carpeta.Ruta("otra/real")), "nuevo");
}

TEST(FicheroAtomico, UnFicheroQueNoCabeDejaElViejo) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("a.txt");
    EscribirTodo(ruta, "viejo");
    std::string fallo;
    {
        const LimiteDeFichero limite(1000);
        FicheroAtomico fichero;
        ASSERT_TRUE(fichero.Abrir(ruta));
        EXPECT_FALSE(fichero.Escribir(std::string(2000, 'x')));
        fallo = fichero.Fallo();
    }
    EXPECT_EQ(fallo, "el fichero es demasiado grande");
    EXPECT_EQ(LeerTodo(ruta), "viejo");
    EXPECT_EQ(Entradas(carpeta.Ruta()), 1u);
}

TEST(FicheroAtomico, DestinosImposibles) {
    const CarpetaTemporal carpeta;
    EscribirTodo(carpeta.Ruta("fichero"), "");
    const std::vector<std::pair<std::string, std::string>> casos{
        {carpeta.Ruta("no/existe.TOM"), "no existe el fichero o la carpeta"},
        {carpeta.Ruta("fichero/dentro.TOM"), "la carpeta no es válida"},
        {carpeta.Ruta(), "es una carpeta"},
        {carpeta.Ruta(std::string(300, 'n')), "el nombre es demasiado largo"},
        {"/dev/full", "no queda espacio en el disco"},
    };
    for (const auto& [ruta, descripcion] : casos) {
        FicheroAtomico fichero;
        EXPECT_FALSE(fichero.Abrir(ruta) && fichero.Escribir("x") && fichero.Confirmar()) << ruta;
        EXPECT_EQ(fichero.Fallo(), descripcion) << ruta;
    }
    EXPECT_EQ(Entradas(carpeta.Ruta()), 1u);
}

TEST(Ficheros, LaExtensionSustituyeAUnaCorta) {
    const std::vector<std::array<std::string, 2>> casos{
        {"/a/sistema", "/a/sistema.TOM"},       {"/a/sistema.TOM", "/a/sistema.TOM"},
        {"/a/sistema.xml", "/a/sistema.TOM"},   {"/a/sistema.TOM.xml", "/a/sistema.TOM.TOM"},
        {"/a/mi.semana", "/a/mi.semana.TOM"},   {"/a/mi.seman", "/a/mi.TOM"},
        {"/a/mi.ñandú", "/a/mi.TOM"},           {"/a.b/cde", "/a.b/cde.TOM"},
        {"Sin guardar.xml", "Sin guardar.TOM"}, {"punto.", "punto.TOM"},
    };
    for (const auto& [ruta, esperada] : casos) EXPECT_EQ(RutaConExtension(ruta, ".TOM"), esperada);
}
