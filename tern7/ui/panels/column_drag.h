#pragma once

#include <QPointer>

#include <tern7/ui/panels/button_drag.h>

namespace tern7 {

class TKResultFieldsPanel;
class TResultFieldRow;

/// Drags the rows of a result fields panel by their numbers. A drop is one step.
class TColumnDrag : public TButtonDrag {
    Q_OBJECT

public:
    explicit TColumnDrag(TKResultFieldsPanel& owner);

    /// The row that is being dragged; none when there is no drag.
    TResultFieldRow* Row() const;

protected:
    bool Begin(QAbstractButton& button) override;
    QRect PlaceAt(const QPoint& inViewport) const override;
    void Drop(const QPoint& inViewport, bool copy) override;
    void Ended() override;
    int LineHeight() const override;

private:
    int GapAt(int y) const;

    TKResultFieldsPanel& panel;
    QPointer<TResultFieldRow> row;
};

} // namespace tern7
