#pragma once

#include <QProxyStyle>

/// Draws the fields of all windows: boxes for texts, lists, dates and numbers, check boxes and options, and the
/// signs of message boxes. Everything is
/// drawn by lines and curves, so that it is crisp at every scale. What it does not draw is left to the Fusion style.
/// Hover, keyboard focus and disabled controls differ by more than colour: line width, fill, and text.
class SkinStyle : public QProxyStyle {
    Q_OBJECT

public:
    SkinStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};
