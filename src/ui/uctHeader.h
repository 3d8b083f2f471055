#pragma once

#include <QWidget>

class QLabel;

/// The band at the head of a window: picture, title, the line below it, and a detail at the right.
class uctHeader : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Title READ Title WRITE setTitle)
    Q_PROPERTY(QString Detail READ Detail WRITE setDetail)

public:
    explicit uctHeader(QWidget* parent = nullptr);

    QString Title() const;
    void setTitle(const QString& title);
    QString Detail() const;
    void setDetail(const QString& detail);
    /// The picture at the left, drawn at 40 × 40.
    void SetPicture(const QIcon& picture);

    QLabel* pictureLabel() const { return picture_; }
    QLabel* sloganLabel() const { return slogan_; }
    QLabel* detailLabel() const { return detail_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* picture_;
    QLabel* title_;
    QLabel* slogan_;
    QLabel* detail_;
};
