#pragma once

#include <functional>
#include <memory>
#include <ostream>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <tern7/ui/controls/drop_down_label.h>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace tern7 {

/// A window with a control under test and a neighbour that can take the focus away from it.
class TControlForm : public QWidget {
public:
    TControlForm() {
        resize(500, 400);
        neighbour->setGeometry(10, 300, 100, 24);
    }

    template <class Control>
    Control* Add(int x = 20, int y = 20) {
        auto* control = new Control(this);
        control->move(x, y);
        return control;
    }

    bool Open() {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }

    QLineEdit* neighbour = new QLineEdit(this);
};

/// The events of a label in their order, as words.
inline void Record(TDropDownLabel& label, QStringList& log) {
    label.BeforeDropDown = [&log](TDropDownLabel*) { log << "before down"; };
    label.AfterDropDown = [&log](TDropDownLabel*) { log << "after down"; };
    label.BeforeDropUp = [&log](TDropDownLabel*, const QString& value, bool& accept) {
        log << QString("before up '%1' %2").arg(value).arg(accept);
    };
    label.AfterDropUp = [&log](TDropDownLabel*, bool accepted) {
        log << QString("after up %1").arg(accepted);
    };
}

/// Does something when the label tells of the event with this name, if it is one of these.
inline void When(const QString& event, TDropDownLabel& label, const std::function<void()>& act) {
    if (event == "before down") label.BeforeDropDown = [act](TDropDownLabel*) { act(); };
    if (event == "after down") label.AfterDropDown = [act](TDropDownLabel*) { act(); };
    if (event == "before up")
        label.BeforeDropUp = [act](TDropDownLabel*, const QString&, bool&) { act(); };
    if (event == "value") QObject::connect(&label, &TDropDownLabel::valueChanged, act);
    if (event == "after up") label.AfterDropUp = [act](TDropDownLabel*, bool) { act(); };
}

/// A press and release that go through the window system, so that popups and focus see them.
inline void ClickAt(QWidget* widget, QPoint at, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, modifiers, widget->mapTo(window, at));
}

/// Where a key that is pressed now would go.
inline QWidget* KeyTarget() {
    QWidget* popup = QApplication::activePopupWidget();
    if (!popup) return QApplication::focusWidget();
    return popup->focusWidget() ? popup->focusWidget() : popup;
}

inline void Type(const QString& text) {
    for (const QChar c : text)
        QTest::keyClick(KeyTarget(), c.toLatin1());
}

inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(KeyTarget(), key, modifiers);
}

inline void Press(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys)
        Press(key);
}

} // namespace tern7
