#pragma once

#include "ui/PropertyBag.h"

#include <QColor>
#include <QWidget>

/// A rounded panel, the parent of what belongs together. Controls are put into it by an ordinary layout: line, caption
/// and tab take their room from the contents margins. Widths are device-independent pixels.
///
/// Colours that were not set are those of the skin; setting an invalid colour goes back to that.
class ucWebbyBorder : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor FillColour READ FillColour WRITE setFillColour)
    Q_PROPERTY(QColor BorderColour READ BorderColour WRITE setBorderColour)
    Q_PROPERTY(int BorderWidth READ BorderWidth WRITE setBorderWidth)
    Q_PROPERTY(int CornerDepth READ CornerDepth WRITE setCornerDepth)
    Q_PROPERTY(QColor TransparentColour READ TransparentColour WRITE setTransparentColour)
    Q_PROPERTY(bool Transparency READ Transparency WRITE setTransparency)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QColor CaptionColour READ CaptionColour WRITE setCaptionColour)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool ShowParamTab READ ShowParamTab WRITE setShowParamTab)
    Q_PROPERTY(QColor ParamTabColor READ ParamTabColor WRITE setParamTabColor)
    Q_PROPERTY(int WidthContainer READ WidthContainer)
    Q_PROPERTY(int HeightContainer READ HeightContainer)

public:
    explicit ucWebbyBorder(QWidget* parent = nullptr);

    QColor FillColour() const;
    void setFillColour(const QColor& colour);
    QColor BorderColour() const;
    void setBorderColour(const QColor& colour);
    int BorderWidth() const { return borderWidth_; }
    void setBorderWidth(int width); ///< below 0 counts as 0, no line
    int CornerDepth() const { return cornerDepth_; }
    void setCornerDepth(int radius);
    /// What shows outside the rounded corners while Transparency is off.
    QColor TransparentColour() const;
    void setTransparentColour(const QColor& colour);
    /// Whether what lies behind the panel shows outside its corners.
    bool Transparency() const { return transparency_; }
    void setTransparency(bool on);
    QString Caption() const { return caption_; }
    void setCaption(const QString& caption); ///< empty: no room is taken for it
    QColor CaptionColour() const;
    void setCaptionColour(const QColor& colour);
    /// The tab along the left edge that ties the panel to the colour of its subject.
    bool ShowParamTab() const { return showParamTab_; }
    void setShowParamTab(bool on);
    QColor ParamTabColor() const;
    void setParamTabColor(const QColor& colour);

    /// The room inside line, caption and tab.
    int WidthContainer() const { return contentsRect().width(); }
    int HeightContainer() const { return contentsRect().height(); }
    void Redraw() { update(); }

    static const StoredProperties& storedProperties();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QFont captionFont() const;
    int tabWidth() const;
    void reserveRoom();

    QColor fillColour_, borderColour_, transparentColour_, captionColour_, paramTabColor_; ///< invalid: the skin's
    int borderWidth_ = 1;
    int cornerDepth_ = 8;
    bool transparency_ = true;
    bool showParamTab_ = false;
    QString caption_;
};
