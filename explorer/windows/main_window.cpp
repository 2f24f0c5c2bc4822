#include "main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSpinBox>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text.h>

#include "../data/language.h"
#include "message_bar.h"
#include "result_view.h"
#include "sql_highlighter.h"

namespace tern7 {

namespace {

constexpr int showSQLAfter = 30; // milliseconds after the last change
constexpr int runLiveAfter = 600;

/// As high as its texts need when they are wrapped, which a splitter does not ask about by itself.
class TPart : public QWidget {
protected:
    bool event(QEvent* event) override {
        const bool done = QWidget::event(event);
        const bool other =
            event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
        if (other && layout() && layout()->hasHeightForWidth())
            setMinimumHeight(layout()->minimumHeightForWidth(width()));
        return done;
    }
};

} // namespace

TMainWindow::TMainWindow(QWidget* parent)
    : QMainWindow(parent), conditions(new TKQueryPanel), columns(new TKResultFieldsPanel),
      results(new TResultView) {
    setAcceptDrops(true);
    plainPointSize = QApplication::font().pointSizeF();
    BuildWindow();
    MakeActions();

    conditions->OnChange = [this](TKQueryPanel&) { QueryChanged(); };
    connect(&runner, &TQueryRunner::columnsRead, this, [this] { shownColumns = askedColumns; });
    results->Attach(runner);
    connect(&runner, &TQueryRunner::failed, this, &TMainWindow::RunFailed);
    connect(&runner, &TQueryRunner::started, this, &TMainWindow::UpdateActions);
    connect(results, &TResultView::runEnded, this, [this] {
        UpdateActions();
        ShowSorting();
        emit runEnded();
    });
    connect(results, &TResultView::headerClicked, this, &TMainWindow::SortBy);

    sqlTimer.setSingleShot(true);
    sqlTimer.setInterval(showSQLAfter);
    connect(&sqlTimer, &QTimer::timeout, this, &TMainWindow::ShowSQL);
    liveTimer.setSingleShot(true);
    liveTimer.setInterval(runLiveAfter);
    connect(&liveTimer, &QTimer::timeout, this, [this] { RunWith(false); });
    RestoreState();
    UpdateActions();
    UpdateTitle();
}

TMainWindow::~TMainWindow() {
    // The panels let go of the structure before the session does.
    conditions->OnChange = nullptr;
    conditions->Editor().Stack().disconnect(this);
    delete columns;
    delete conditions;
}

// --- the parts
//
//     +-----------------+--------------------------------+
//     | Columns         | Conditions                     |
//     |                 |                                |
//     +-----------------+--------------------------------+
//     | SQL (can be hidden)                              |
//     +--------------------------------------------------+
//     | result rows                                      |
//     +--------------------------------------------------+

void TMainWindow::BuildWindow() {
    queryParts = new QSplitter(Qt::Horizontal);
    queryParts->addWidget(MakeColumnsPart());
    queryParts->addWidget(MakeConditionsPart());
    queryParts->setStretchFactor(0, 2);
    queryParts->setStretchFactor(1, 3);
    sqlPart = MakeSQLPart();
    auto* resultPart = Part(QT_TR_NOOP("&Result"), results);
    results->setFocusProxy(&results->Table());

    queryMessages = new TMessageBar(this);
    queryMessages->setObjectName(QStringLiteral("queryMessages"));
    auto* top = new QWidget;
    auto* topColumn = new QVBoxLayout(top);
    topColumn->setContentsMargins(0, 0, 0, 0);
    topColumn->addWidget(queryMessages);
    topColumn->addWidget(queryParts, 1);

    parts = new QSplitter(Qt::Vertical);
    parts->addWidget(top);
    parts->addWidget(sqlPart);
    parts->addWidget(resultPart);
    parts->setStretchFactor(0, 4);
    parts->setStretchFactor(1, 1);
    parts->setStretchFactor(2, 4);
    parts->setCollapsible(0, false);
    parts->setCollapsible(2, false);
    setCentralWidget(parts);
}

/// A part of the window below its heading.
QWidget* TMainWindow::Part(const char* heading, QWidget* content) {
    auto* label = new QLabel;
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setBuddy(content);
    Worded([label, content, heading] {
        label->setText(tr(heading));
        content->setAccessibleName(PlainText(tr(heading)));
    });
    auto* part = new TPart;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(6, 4, 6, 4);
    column->setSpacing(4);
    column->addWidget(label);
    column->addWidget(content, 1);
    return part;
}

QWidget* TMainWindow::MakeColumnsPart() {
    columns->viewport()->setBackgroundRole(QPalette::Base);
    columns->SetResultFields(&conditions->QResult().ResultFields());
    QWidget* part = Part(QT_TR_NOOP("C&olumns"), columns);
    grouping = new QLabel;
    grouping->setTextFormat(Qt::PlainText);
    grouping->setWordWrap(true);
    grouping->hide();
    part->layout()->addWidget(grouping);
    tables = new QLabel;
    tables->setWordWrap(true);
    tables->setTextFormat(Qt::RichText);
    tables->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    tables->hide();
    connect(tables, &QLabel::linkActivated, this, [this](const QString& link) {
        link == QStringLiteral("way") ? ChooseJoinWay() : ChooseStartTable();
    });
    part->layout()->addWidget(tables);
    return part;
}

QWidget* TMainWindow::MakeConditionsPart() {
    conditions->viewport()->setBackgroundRole(QPalette::Base);
    return Part(QT_TR_NOOP("Con&ditions"), conditions);
}

QWidget* TMainWindow::MakeSQLPart() {
    sqlText = new QPlainTextEdit;
    sqlText->setReadOnly(true);
    sqlText->setTabChangesFocus(true);
    sqlText->setLineWrapMode(QPlainTextEdit::NoWrap);
    sqlText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    sqlText->setLayoutDirection(Qt::LeftToRight);
    new TSQLHighlighter(sqlText->document());
    return Part(QT_TR_NOOP("SQ&L"), sqlText);
}

QString TMainWindow::ShownSQL() const {
    return sqlText->toPlainText();
}

// --- state

void TMainWindow::RestoreState() {
    const QSettings settings;
    if (!restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(1000, 720);
    const bool known = parts->restoreState(settings.value("window/parts").toByteArray()) &&
                       queryParts->restoreState(settings.value("window/query").toByteArray());
    if (!known) {
        parts->setSizes({300, 130, 280});
        queryParts->setSizes({380, 620});
    }
    sqlAction->setChecked(settings.value(QStringLiteral("window/sql"), true).toBool());
    andOrAction->setChecked(settings.value(QStringLiteral("view/andOr"), false).toBool());
    liveAction->setChecked(settings.value(QStringLiteral("run/live"), false).toBool());
    rowLimit->setValue(settings.value(QStringLiteral("run/limit"), 1000).toInt());
    SetZoom(settings.value(QStringLiteral("view/zoom"), 100).toInt());
    SetLook(static_cast<TLook>(settings.value(QStringLiteral("view/look"), 0).toInt()));
    SetLanguage(settings.value(QStringLiteral("view/language")).toString());
}

void TMainWindow::StoreState() const {
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/parts"), parts->saveState());
    settings.setValue(QStringLiteral("window/query"), queryParts->saveState());
    settings.setValue(QStringLiteral("window/sql"), sqlAction->isChecked());
    settings.setValue(QStringLiteral("view/andOr"), andOrAction->isChecked());
    settings.setValue(QStringLiteral("run/live"), liveAction->isChecked());
    settings.setValue(QStringLiteral("run/limit"), rowLimit->value());
    settings.setValue(QStringLiteral("view/zoom"), zoom);
    settings.setValue(QStringLiteral("view/look"), static_cast<int>(look));
    settings.setValue(QStringLiteral("view/language"), language);
}

void TMainWindow::UpdateTitle() {
    const QString name = queryFile.isEmpty() ? tr("New query") : QFileInfo(queryFile).fileName();
    const QString database =
        session ? QFileInfo(ToQt(session->Url().DisplayText())).fileName() : QString();
    setWindowTitle(database.isEmpty() ? QStringLiteral("tern7")
                                      : QStringLiteral("%1[*] – %2 – tern7").arg(name, database));
    setWindowModified(IsModified());
}

void TMainWindow::Warn(const QString& title, const QString& text) {
    if (OnTrouble) return OnTrouble(text);
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText); // it quotes files and databases
    box.exec();
}

void TMainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    for (const auto& say : wordings)
        say();
    FillRecentMenus();
    UpdateTitle();
    ShowSQL();
}

void TMainWindow::closeEvent(QCloseEvent* event) {
    if (!MayDiscard()) return event->ignore();
    StoreState();
    runner.Cancel();
    event->accept();
}

void TMainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().front().isLocalFile())
        event->acceptProposedAction();
}

void TMainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QString file = event->mimeData()->urls().front().toLocalFile();
    // The other program waits until the drop is over.
    QMetaObject::invokeMethod(
        this, [this, file] { OpenFile(file); }, Qt::QueuedConnection);
}

} // namespace tern7
