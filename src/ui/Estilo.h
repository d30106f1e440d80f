// The desktop's own style with edges that can be seen.
#pragma once

#include <QProxyStyle>

/// Draws the edges of check boxes, radio buttons and text fields in a mix of text and background colours, where the
/// toolkit's own style leaves them nearly as dark, or as light, as the background. A desktop with a
/// style of its own keeps it untouched.
class Estilo final : public QProxyStyle {
  public:
    using QProxyStyle::polish;
    /// Hints in a field stand out by 4.5 to 1: half of the text's colour is not enough.
    void polish(QPalette& paleta) override;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* widget) const override;
};
