#pragma once

#include "ui/PropertyBag.h"

#include <QIcon>
#include <QWidget>

class QLabel;

/// The band at the head of a window: picture, title, the slogan below it, and a detail at the right. Title and detail
/// end in "..." where they do not fit.
class uctHeader : public QWidget {
    Q_OBJECT
    Q_PROPERTY(Style HeaderType READ HeaderType WRITE setHeaderType)
    Q_PROPERTY(QString Title READ Title WRITE setTitle)
    Q_PROPERTY(QString Detail READ Detail WRITE setDetail)

public:
    enum class Style {
        Window, ///< of a large window: with slogan
        Prompt  ///< of a small window: one line
    };
    Q_ENUM(Style)

    explicit uctHeader(QWidget* parent = nullptr);

    Style HeaderType() const { return style_; }
    void setHeaderType(Style style);
    QString Title() const;
    void setTitle(const QString& title);
    QString Detail() const;
    void setDetail(const QString& detail);
    /// The picture at the left, drawn at 40 × 40, in prompts at 24 × 24. Without one its place is not taken.
    void SetPicture(const QIcon& picture);
    /// Arranges and draws anew.
    void Refresh();

    static const StoredProperties& storedProperties();

    QLabel* pictureLabel() const { return picture_; }
    QLabel* sloganLabel() const { return slogan_; }
    QLabel* detailLabel() const { return detail_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void arrange();

    Style style_ = Style::Window;
    QIcon icon_;
    QLabel* picture_;
    QLabel* title_;
    QLabel* slogan_;
    QLabel* detail_;
};
