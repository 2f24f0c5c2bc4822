#pragma once

#include <tern7/core/query/drop_places.h>
#include <tern7/ui/panels/button_drag.h>

namespace tern7 {

class TKQueryPanel;

/// Drags the rows of a query panel; the indicator shows how deep a row would stand, too. A drop is
/// one step. Whatever ends the row cancels too.
class TRowDrag : public TButtonDrag {
    Q_OBJECT

public:
    explicit TRowDrag(TKQueryPanel& owner);

    /// The row that is being dragged; none when there is no drag.
    TFilterRow* Row() const { return row; }

protected:
    bool Begin(QAbstractButton& button) override;
    QRect PlaceAt(const QPoint& inViewport) const override;
    void Drop(const QPoint& inViewport, bool copy) override;
    void Ended() override { row = nullptr; }
    int LineHeight() const override;

private:
    bool IsAllowed(const TDropPlace& place, bool copy) const;
    TDropPlace DropPlaceAt(const QPoint& inViewport, bool copy) const;
    int GapAt(int y) const;

    TKQueryPanel& panel;
    TFilterRow* row = nullptr;
};

} // namespace tern7
