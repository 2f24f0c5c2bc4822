#include "main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QSyntaxHighlighter>

#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/language_titles.h>
#include <tern7/ui/support/text.h>

#include "../data/language.h"

namespace tern7 {

namespace {

QPalette DarkPalette() {
    const QColor window(0x2B, 0x2D, 0x30), base(0x1E, 0x1F, 0x22), text(0xDF, 0xE1, 0xE5);
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2B));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x8A, 0x8E, 0x95));
    palette.setColor(QPalette::Link, QColor(0x7A, 0xB3, 0xFF));
    palette.setColor(QPalette::LinkVisited, QColor(0xC0, 0xA0, 0xFF));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x65, 0xC8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x84, 0x8A));
    return palette;
}

QPalette LightPalette() {
    const QColor window(0xF3, 0xF3, 0xF4);
    QPalette palette(window);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF8, 0xFA));
    palette.setColor(QPalette::Link, QColor(0x0B, 0x57, 0xD0));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x65, 0xC8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

void TMainWindow::MakeViewMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&View"));
    sqlAction = Switch(QT_TR_NOOP("Show &SQL"), {});
    sqlAction->setChecked(true);
    sqlAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+J")));
    connect(sqlAction, &QAction::toggled, sqlPart, &QWidget::setVisible);
    menu->addAction(sqlAction);

    andOrAction = Switch(QT_TR_NOOP("And/or &words instead of brackets"), {});
    connect(andOrAction, &QAction::toggled, this, [this](bool on) {
        conditions->Appearance().SetStyle(on ? TQPStyle::psAndOr : TQPStyle::psGroups);
    });
    menu->addAction(andOrAction);
    menu->addSeparator();

    QMenu* languageMenu = Menu(QT_TR_NOOP("&Language"), menu);
    languageActions = new QActionGroup(this);
    for (const TTitleLanguage& each : TitleLanguages()) {
        QAction* action = languageMenu->addAction(each.name);
        action->setCheckable(true);
        action->setData(each.code);
        languageActions->addAction(action);
    }
    connect(languageActions, &QActionGroup::triggered, this,
            [this](QAction* action) { SetLanguage(action->data().toString()); });

    QMenu* titlesMenu = Menu(QT_TR_NOOP("&Captions"), menu);
    titlesMenu->addAction(Action(QT_TR_NOOP("Of the con&ditions..."), QKeySequence("Ctrl+Shift+T"),
                                 [this] { EditTitles(*conditions); }));
    titlesMenu->addAction(
        Action(QT_TR_NOOP("Of the c&olumns..."), {}, [this] { EditTitles(*columns); }));
    titlesMenu->addAction(Action(QT_TR_NOOP("As &delivered"), {}, [this] { ForgetTitles(); }));

    QMenu* lookMenu = Menu(QT_TR_NOOP("L&ook"), menu);
    lookActions = new QActionGroup(this);
    const char* const names[] = {QT_TR_NOOP("As the s&ystem"), QT_TR_NOOP("&Light"),
                                 QT_TR_NOOP("&Dark")};
    for (int i = 0; i < 3; ++i) {
        QAction* action = Switch(names[i], [this, i] { SetLook(static_cast<TLook>(i)); });
        action->setData(i);
        lookActions->addAction(action);
    }
    lookMenu->addActions(lookActions->actions());

    menu->addSeparator();
    menu->addAction(
        Action(QT_TR_NOOP("Zoom &in"), QKeySequence::ZoomIn, [this] { SetZoom(zoom + 10); }));
    menu->addAction(
        Action(QT_TR_NOOP("Zoom &out"), QKeySequence::ZoomOut, [this] { SetZoom(zoom - 10); }));
    menu->addAction(
        Action(QT_TR_NOOP("&Normal size"), QKeySequence("Ctrl+0"), [this] { SetZoom(100); }));
}

// --- language and captions

void TMainWindow::SetLanguage(const QString& code) {
    language = code.isEmpty() ? SystemLanguage() : code;
    for (QAction* action : languageActions->actions())
        action->setChecked(action->data().toString() == language);
    // Values are kept as they are shown.
    conditions->Query().ChangeLocalForms([this] { InstallLanguage(language); });
    setLocale(QLocale());
    if (session) session->TranslateOperators();
    ShowTitles();
    DrawIcons();                          // some have a direction
    QEvent event(QEvent::LanguageChange); // not only when the windows get to it
    QCoreApplication::sendEvent(this, &event);
}

QString TMainWindow::TitlesKey(const char* part) const {
    return QStringLiteral("titles/%1/%2").arg(language, QLatin1String(part));
}

/// The captions of the language, or what the user has made of them.
void TMainWindow::ShowTitles() {
    const auto titles = [this](const char* part, const TStrings& delivered) {
        const QByteArray own = QSettings().value(TitlesKey(part)).toByteArray();
        return own.isEmpty() ? delivered : SplitLines(own.toStdString());
    };
    conditions->SetTitles(titles("conditions", LanguageTitles(language)));
    columns->SetTitles(titles("columns", LanguageResultFieldsPanelTitles(language)));
}

template <class Panel>
void TMainWindow::EditTitles(Panel& panel) {
    if (!panel.EditTitles()) return;
    const bool ofColumns = std::is_same_v<Panel, TKResultFieldsPanel>;
    QSettings().setValue(TitlesKey(ofColumns ? "columns" : "conditions"),
                         QByteArray::fromStdString(JoinStrings(panel.Titles(), "\n")));
}

void TMainWindow::ForgetTitles() {
    QSettings settings;
    for (const char* part : {"conditions", "columns"})
        settings.remove(TitlesKey(part));
    ShowTitles();
}

// --- look and zoom

void TMainWindow::SetLook(TLook wanted) {
    look = wanted;
    for (QAction* action : lookActions->actions())
        action->setChecked(action->data().toInt() == static_cast<int>(wanted));
    if (wanted == TLook::System)
        QApplication::setPalette(QPalette());
    else
        QApplication::setPalette(wanted == TLook::Dark ? DarkPalette() : LightPalette());
    DrawIcons();
    // The colours of the statement are chosen when it is coloured.
    if (auto* highlighter = sqlText->document()->findChild<QSyntaxHighlighter*>())
        highlighter->rehighlight();
    tables->clear(); // a link keeps the colour that it was set with
    ShowTables();
}

void TMainWindow::SetZoom(int percent) {
    zoom = std::clamp(percent, 50, 300);
    ApplyZoom();
}

void TMainWindow::ApplyZoom() {
    QFont font = QApplication::font();
    font.setPointSizeF(plainPointSize * zoom / 100);
    QApplication::setFont(font);
    QFont fixed = sqlText->font();
    fixed.setPointSizeF(plainPointSize * zoom / 100);
    sqlText->setFont(fixed);
}

} // namespace tern7
