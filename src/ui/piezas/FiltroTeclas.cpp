#include "FiltroTeclas.h"

#include <QApplication>
#include <QKeyEvent>

#include "TextoQt.h"
#include "modGeneral.h"

namespace {

constexpr int SoloDigitos = 1;

// Whether the press types or deletes, so that the field's rule applies to it.
bool EsDelCampo(const QKeyEvent& evento) {
    switch (evento.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return false;
    default:
        return !evento.text().isEmpty() &&
               !(evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    }
}

// Characters outside the 8-bit code page are refused in all modes that a field of numbers has.
int Codigo(const QKeyEvent& evento) {
    const char16_t letra = evento.text().at(0).unicode();
    return letra < 256 ? static_cast<int>(letra) : 0;
}

class FiltroTeclas final : public QObject {
  public:
    FiltroTeclas(QLineEdit& campo, int modo, std::function<void()> alPulsar)
        : QObject(&campo), campo_(campo), modo_(modo), alPulsar_(std::move(alPulsar)) {}

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress) {
            const auto& tecla = *static_cast<const QKeyEvent*>(evento);
            if (EsDelCampo(tecla)) return Pulsar(Codigo(tecla));
        }
        return QObject::eventFilter(objeto, evento);
    }

  private:
    bool Pulsar(int codigo) {
        alPulsar_();
        const std::string antes = Utf8(campo_.text());
        std::string texto = antes;
        const TeclaFiltrada filtrada = FiltroTecla(texto, codigo, modo_, campo_.hasSelectedText());
        if (filtrada.Pitido) QApplication::beep();
        if (texto != antes) {
            campo_.setText(Q(texto));
            emit campo_.textEdited(campo_.text());
        }
        return filtrada.Tecla == 0;
    }

    QLineEdit& campo_;
    int modo_;
    std::function<void()> alPulsar_;
};

// Takes Enter before the key filter of the field swallows it.
class FiltroIntro final : public QObject {
  public:
    FiltroIntro(QLineEdit& campo, std::function<void(const std::string&)> alIntro)
        : QObject(&campo), campo_(campo), alIntro_(std::move(alIntro)) {}

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(objeto, evento);
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter) return false;
        alIntro_(Utf8(campo_.text()));
        campo_.selectAll();
        return true;
    }

  private:
    QLineEdit& campo_;
    std::function<void(const std::string&)> alIntro_;
};

} // namespace

void InstalarIntro(QLineEdit& campo, std::function<void(const std::string&)> alIntro) {
    campo.installEventFilter(new FiltroIntro(campo, std::move(alIntro)));
}

void InstalarFiltroTeclas(QLineEdit& campo, int modo, std::function<void()> alPulsar) {
    campo.installEventFilter(new FiltroTeclas(campo, modo, std::move(alPulsar)));
}

QLineEdit* CrearCampoNumero(const QString& nombre, const QString& ayuda,
                            std::function<void(const std::string&)> alCambiar, std::function<void()> alPulsar) {
    auto* campo = new QLineEdit;
    campo->setObjectName(nombre);
    campo->setAccessibleName(ayuda);
    campo->setToolTip(ayuda);
    campo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QLatin1String("0000000")) + 16);
    InstalarFiltroTeclas(*campo, SoloDigitos, std::move(alPulsar));
    QObject::connect(campo, &QLineEdit::textEdited, campo,
                     [alCambiar = std::move(alCambiar)](const QString& texto) { alCambiar(Utf8(texto)); });
    return campo;
}

void PintarCampo(QLineEdit& campo, const std::string& texto) {
    if (Utf8(campo.text()) != texto) campo.setText(Q(texto));
}
