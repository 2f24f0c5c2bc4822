#pragma once

namespace tern7 {

class TFilterBracket;
class TFilterRow;

/// What a panel tells its accessible object, if a screen reader has asked for one.
class TAccessibleRows {
public:
    virtual ~TAccessibleRows() = default;
    virtual void RowsCome(const TFilterBracket& parent, int index, int count) = 0;
    /// Any rows may have come.
    virtual void AllRowsCome() = 0;
    /// Before the rows leave the tree.
    virtual void RowsGo(const TFilterBracket& parent, int index, int count) = 0;
    /// What the row reads as is another text, perhaps.
    virtual void RowChanged(const TFilterRow& row) = 0;
    /// The lines are others, and those in sight have their controls.
    virtual void LinesPlaced() = 0;
};

/// Makes query panels known to screen readers: a tree of rows, those out of sight too, each read as
/// its sentence with its level, its position and its state. The first call does the work.
void InstallAccessiblePanel();

} // namespace tern7
