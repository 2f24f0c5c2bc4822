#pragma once

#include <QCheckBox>

namespace tern7 {

/// The check box of a row: a flat square as high as the text beside it.
class TFlatCheckBox : public QCheckBox {
    Q_OBJECT

public:
    explicit TFlatCheckBox(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {}; }

protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int BoxSize() const;
};

} // namespace tern7
