#pragma once

#include <QColor>
#include <QObject>

#include <tern7/core/query/query.h>

namespace tern7 {

/// How a query panel looks. Owned by its panel, which is shown anew after each change, or once
/// after the outermost EndUpdate.
class TQPAppearance : public QObject {
    Q_OBJECT
    Q_PROPERTY(QColor ActiveRowColor READ ActiveRowColor WRITE SetActiveRowColor)
    Q_PROPERTY(QColor ControlBorderColor READ ControlBorderColor WRITE SetControlBorderColor)
    Q_PROPERTY(QColor FieldColor READ FieldColor WRITE SetFieldColor)
    Q_PROPERTY(QColor OperatorColor READ OperatorColor WRITE SetOperatorColor)
    Q_PROPERTY(QColor ValueColor READ ValueColor WRITE SetValueColor)
    Q_PROPERTY(QColor BoolOpColor READ BoolOpColor WRITE SetBoolOpColor)
    Q_PROPERTY(TQPAppearanceOptions Options READ Options WRITE SetOptions)
    Q_PROPERTY(TStyle Style READ FormStyle WRITE SetFormStyle)

public:
    enum TQPAppearanceOption {
        aoFlatButtons = 1 << 0,
        aoRoundButtons = 1 << 1,
        aoNonEmptyBrackets = 1 << 2,
        aoPopupField = 1 << 3, ///< fields are chosen from a menu, else from a list box
        aoPopupValue = 1 << 4, ///< the same for values with a list
        aoShowGroupName = 1 << 5,
        aoAllowKeyboard = 1 << 6,
        aoSortListData = 1 << 7,
        aoShowAddRow = 1 << 8,
        aoShowCheckBoxes = 1 << 9,
        aoAllowParams = 1 << 10
    };
    Q_DECLARE_FLAGS(TQPAppearanceOptions, TQPAppearanceOption)
    Q_FLAG(TQPAppearanceOptions)

    /// TQPStyle as forms keep it.
    enum TStyle { psGroups, psAndOr };
    Q_ENUM(TStyle)

    explicit TQPAppearance(QObject* parent = nullptr);

    // Background of the current row, and the line around an open editor; an invalid colour means
    // the palette's.
    QColor ActiveRowColor() const { return activeRowColor; }
    void SetActiveRowColor(const QColor& color) { Set(activeRowColor, color); }
    QColor ControlBorderColor() const { return controlBorderColor; }
    void SetControlBorderColor(const QColor& color) { Set(controlBorderColor, color); }
    // Blue at first; while they are, dark palettes show their link colour instead.
    QColor FieldColor() const { return fieldColor; }
    void SetFieldColor(const QColor& color) { Set(fieldColor, color); }
    QColor OperatorColor() const { return operatorColor; }
    void SetOperatorColor(const QColor& color) { Set(operatorColor, color); }
    QColor ValueColor() const { return valueColor; }
    void SetValueColor(const QColor& color) { Set(valueColor, color); }
    /// Of all, any, none, not all, and, or.
    QColor BoolOpColor() const { return boolOpColor; }
    void SetBoolOpColor(const QColor& color) { Set(boolOpColor, color); }

    TQPAppearanceOptions Options() const { return options; }
    void SetOptions(TQPAppearanceOptions value) { Set(options, value); }
    bool Has(TQPAppearanceOption option) const { return options.testFlag(option); }
    TQPStyle Style() const { return style; }
    void SetStyle(TQPStyle value) { Set(style, value); }
    TStyle FormStyle() const { return static_cast<TStyle>(style); }
    void SetFormStyle(TStyle value);

    void BeginUpdate() { ++nesting; }
    void EndUpdate();
    /// Copies all values.
    void AssignTo(TQPAppearance& other) const;

signals:
    void changed();

private:
    void Changed();
    template <class T>
    void Set(T& member, const T& value) {
        if (member == value) return;
        member = value;
        Changed();
    }

    QColor activeRowColor;
    QColor controlBorderColor;
    QColor fieldColor;
    QColor operatorColor;
    QColor valueColor;
    QColor boolOpColor;
    TQPAppearanceOptions options;
    TQPStyle style = TQPStyle::psGroups;
    int nesting = 0;
    bool pending = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TQPAppearance::TQPAppearanceOptions)

} // namespace tern7
