#pragma once

#include <QColor>
#include <QObject>

namespace tern7 {

/// How a result fields panel looks; owned by its panel. Margins and gaps, in pixels, apply at the
/// next layout, colours and options at once.
class TRFPAppearance : public QObject {
    Q_OBJECT
    Q_PROPERTY(int LeftMargin READ LeftMargin WRITE SetLeftMargin)
    Q_PROPERTY(int TopMargin READ TopMargin WRITE SetTopMargin)
    Q_PROPERTY(int RowSpace READ RowSpace WRITE SetRowSpace)
    Q_PROPERTY(int ElemSpace READ ElemSpace WRITE SetElemSpace)
    Q_PROPERTY(QColor FieldColor READ FieldColor WRITE SetFieldColor)
    Q_PROPERTY(QColor SortColor READ SortColor WRITE SetSortColor)
    Q_PROPERTY(TRFPAppearanceOptions Options READ Options WRITE SetOptions)

public:
    enum TRFPAppearanceOption {
        aoFlatButtons = 1 << 0,   ///< row buttons show their body only under the mouse
        aoRoundButtons = 1 << 1,  ///< row buttons have round ends
        aoPopupField = 1 << 2,    ///< fields are chosen from a menu, else from a list box
        aoShowGroupName = 1 << 3, ///< a field is shown with the name of its group
    };
    Q_DECLARE_FLAGS(TRFPAppearanceOptions, TRFPAppearanceOption)
    Q_FLAG(TRFPAppearanceOptions)

    explicit TRFPAppearance(QObject* parent = nullptr);

    int LeftMargin() const { return leftMargin; }
    void SetLeftMargin(int value) { leftMargin = value; }
    int TopMargin() const { return topMargin; }
    void SetTopMargin(int value) { topMargin = value; }
    int RowSpace() const { return rowSpace; }
    void SetRowSpace(int value) { rowSpace = value; }
    int ElemSpace() const { return elemSpace; }
    void SetElemSpace(int value) { elemSpace = value; }
    // Blue at first; while they are, dark palettes show their link colour instead.
    QColor FieldColor() const { return fieldColor; }
    void SetFieldColor(const QColor& color) { Set(fieldColor, color); }
    QColor SortColor() const { return sortColor; }
    void SetSortColor(const QColor& color) { Set(sortColor, color); }
    TRFPAppearanceOptions Options() const { return options; }
    void SetOptions(TRFPAppearanceOptions value) { Set(options, value); }
    bool Has(TRFPAppearanceOption option) const { return options.testFlag(option); }

    /// Copies all values.
    void AssignTo(TRFPAppearance& other) const;

signals:
    /// Colours or options were changed.
    void changed();

private:
    template <class T>
    void Set(T& member, const T& value) {
        if (member == value) return;
        member = value;
        emit changed();
    }

    int leftMargin = 5;
    int topMargin = 5;
    int rowSpace = 3;
    int elemSpace = 5;
    QColor fieldColor;
    QColor sortColor;
    TRFPAppearanceOptions options;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TRFPAppearance::TRFPAppearanceOptions)

} // namespace tern7
