#pragma once

#include "ui/PropertyBag.h"

#include <QAbstractButton>

/// A flat button or link: a text caption that is highlighted while the mouse is over it. Its click is
/// QAbstractButton::clicked, by mouse, Space, Return, or the caption's mnemonic. A caption that does not fit ends in
/// "..." and shows itself whole as a tool tip, unless the link has one of its own.
///
/// Colours that were not set follow from the kind, so that a window need not name any; setting an invalid colour goes
/// back to that.
class ucWebbyLink : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QColor Colour READ Colour WRITE setColour)
    Q_PROPERTY(QColor ColourHighlight READ ColourHighlight WRITE setColourHighlight)
    Q_PROPERTY(QColor BackColour READ BackColour WRITE setBackColour)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(bool Autosize READ Autosize WRITE setAutosize)
    Q_PROPERTY(bool WordWrap READ WordWrap WRITE setWordWrap)
    Q_PROPERTY(Qt::Alignment Alignment READ Alignment WRITE setAlignment)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(Kind Kind READ kind WRITE setKind)

public:
    enum class Kind {
        Link,     ///< text only
        Outlined, ///< a button
        Primary,  ///< the button that a window is there for: filled, one in each window
        Danger    ///< a button that takes something away
    };
    Q_ENUM(Kind)

    explicit ucWebbyLink(QWidget* parent = nullptr);
    ucWebbyLink(const QString& caption, Kind kind, QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void setCaption(const QString& caption);
    QColor Colour() const;
    void setColour(const QColor& colour);
    QColor ColourHighlight() const;
    void setColourHighlight(const QColor& colour);
    /// What the caption stands on; a link without one shows what lies behind it.
    QColor BackColour() const;
    void setBackColour(const QColor& colour);
    /// Whether the size follows the caption.
    bool Autosize() const { return autosize_; }
    void setAutosize(bool on);
    bool WordWrap() const { return wordWrap_; }
    void setWordWrap(bool on);
    Qt::Alignment Alignment() const { return alignment_; }
    void setAlignment(Qt::Alignment alignment);
    Kind kind() const { return kind_; }
    void setKind(Kind kind);

    /// Width of the caption on one line, in device-independent pixels.
    int TxtWidth() const;
    /// Works out size and picture anew.
    void Refresh();

    static const StoredProperties& storedProperties();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return wordWrap_; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool highlighted() const;
    QColor fill() const;
    QColor line() const;
    QColor textColour() const;
    QMargins padding() const;
    QSize textSize(int width) const;
    int textFlags() const;
    void paintFrame(QPainter& painter) const;
    void paintCaption(QPainter& painter) const;

    Kind kind_ = Kind::Link;
    QColor colour_, highlight_, back_; ///< invalid: as the kind has it
    bool autosize_ = true;
    bool wordWrap_ = false;
    Qt::Alignment alignment_ = Qt::AlignCenter;
};
