#include <tern7/ui/dialogs/titles_editor.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/titles/title_sections.h>
#include <tern7/core/titles/titles_text.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

struct TSection {
    std::string name;
    TStrings lines;
};

/// The sections of a title list; a list without any is one section without a name.
std::vector<TSection> Sections(const TStrings& titles) {
    std::vector<TSection> sections;
    const bool flat = TKTitleSections(titles).IsFlat();
    if (flat) sections.push_back({});
    std::string_view name;
    for (const std::string& line : titles) {
        if (IsTitleSection(line, name))
            sections.push_back({std::string(name), {}});
        else if (!sections.empty() && !line.empty())
            sections.back().lines.push_back(line);
    }
    return sections;
}

TStrings SectionLines(const std::vector<TSection>& sections, std::string_view name) {
    for (const TSection& section : sections)
        if (SameText(section.name, name)) return section.lines;
    return {};
}

} // namespace

T_dlgTitlesEdit::T_dlgTitlesEdit(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setWindowTitle(tr("Titles editor"));
    auto* layout = new QVBoxLayout(this);
    place = new QVBoxLayout;
    layout->addLayout(place, 1);
    notice = new QLabel(this);
    notice->setWordWrap(true);
    notice->hide();
    layout->addWidget(notice);
    auto* bottom = new QHBoxLayout;
    auto* load = new QPushButton(tr("&Load..."), this);
    auto* save = new QPushButton(tr("&Save..."), this);
    auto* answers = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    bottom->addWidget(load);
    bottom->addWidget(save);
    bottom->addStretch();
    bottom->addWidget(answers);
    layout->addLayout(bottom);
    for (QPushButton* button : {load, save})
        button->setAutoDefault(false);
    connect(load, &QPushButton::clicked, this, &T_dlgTitlesEdit::AskLoad);
    connect(save, &QPushButton::clicked, this, &T_dlgTitlesEdit::AskSave);
    connect(answers, &QDialogButtonBox::accepted, this, &T_dlgTitlesEdit::accept);
    connect(answers, &QDialogButtonBox::rejected, this, &T_dlgTitlesEdit::reject);
    MakeActions();
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 28);
}

/// The items of the grids' menu, with their keys.
void T_dlgTitlesEdit::MakeActions() {
    auto* load = new QAction(tr("&Load From File..."), this);
    load->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
    connect(load, &QAction::triggered, this, &T_dlgTitlesEdit::AskLoad);
    auto* save = new QAction(tr("&Save To File"), this);
    save->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    connect(save, &QAction::triggered, this, &T_dlgTitlesEdit::AskSave);
    addActions({load, save});
}

void T_dlgTitlesEdit::SetDefTitles(const TStrings& titles) {
    defTitles = titles;
}

void T_dlgTitlesEdit::Init(const TStrings& titles) {
    const int page = tabs ? tabs->currentIndex() : 0;
    notice->hide();
    pages.clear();
    delete body;
    MakePages(titles);
    place->addWidget(body);
    if (tabs) tabs->setCurrentIndex(page);
    GridInSight().setFocus();
    changed = false;
}

TKTitlesGrid& T_dlgTitlesEdit::GridInSight() const {
    return *Grid(tabs ? std::max(tabs->currentIndex(), 0) : 0);
}

void T_dlgTitlesEdit::MakePages(const TStrings& titles) {
    const std::vector<TSection> defaults = Sections(defTitles);
    const std::vector<TSection> texts = Sections(titles);
    const bool flat = defaults.size() == 1 && defaults.front().name.empty();
    tabs = flat || defaults.empty() ? nullptr : new QTabWidget(this);
    if (!tabs) {
        pages.push_back({{}, MakeGrid()});
        pages.front().grid->FillGrid(defTitles, titles);
        body = pages.front().grid;
        return;
    }
    for (const TSection& section : defaults) {
        TKTitlesGrid* grid = MakeGrid();
        tabs->addTab(grid, ToQt(section.name).replace('&', "&&"));
        grid->FillGrid(section.lines, SectionLines(texts, section.name));
        grid->setAccessibleName(ToQt(section.name));
        pages.push_back({section.name, grid});
    }
    body = tabs;
}

TKTitlesGrid* T_dlgTitlesEdit::MakeGrid() {
    auto* grid = new TKTitlesGrid(this);
    grid->setAccessibleName(windowTitle());
    grid->addActions(actions());
    grid->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(grid, &TKTitlesGrid::edited, this, &T_dlgTitlesEdit::DoChanged);
    return grid;
}

void T_dlgTitlesEdit::SaveToTitlesSections(TStrings& titles) const {
    titles.clear();
    for (const TPage& page : pages) {
        if (!page.section.empty()) titles.push_back("[" + page.section + "]");
        page.grid->AppendLines(titles);
        if (!page.section.empty()) titles.emplace_back();
    }
}

void T_dlgTitlesEdit::DoChanged() {
    changed = true;
    OnChange(this);
}

// --- files

void T_dlgTitlesEdit::LoadFile(const QString& fileName) {
    const TKLoadedTitles loaded = LoadTitlesFile(defTitles, FromQt(fileName));
    if (loaded.isForeign)
        throw EKTernError(FromQt(tr("The file holds no titles that can be used here: %1")
                                     .arg(QDir::toNativeSeparators(fileName))));
    Init(loaded.titles);
    if (loaded.wasWindows1252) {
        notice->setText(tr("The file is not UTF-8 and was read as Windows-1252."));
        notice->show();
    }
    DoChanged();
}

QString T_dlgTitlesEdit::Notice() const {
    return notice->isHidden() ? QString() : notice->text();
}

void T_dlgTitlesEdit::SaveFile(const QString& fileName) const {
    TStrings titles;
    SaveToTitlesSections(titles);
    SaveTitlesFile(titles, FromQt(fileName));
}

void T_dlgTitlesEdit::Report(const std::function<void()>& call) {
    try {
        call();
    } catch (const EKTernError& error) {
        QMessageBox::warning(this, windowTitle(), ToQt(error.what()));
    }
}

/// A file replaces all texts, those too that were just entered.
void T_dlgTitlesEdit::AskLoad() {
    GridInSight().setFocus(); // what is being edited counts
    if (changed && !AskDiscard()) return;
    QFileDialog dialog(this);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({tr("TERN Titles (*.ttl)"), tr("Query files (*.qry)")});
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        Report([&] { LoadFile(dialog.selectedFiles().constFirst()); });
}

void T_dlgTitlesEdit::AskSave() {
    GridInSight().setFocus(); // what is being edited counts
    QFileDialog dialog(this);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("ttl"));
    dialog.setNameFilter(tr("TERN Titles (*.ttl)"));
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        Report([&] { SaveFile(dialog.selectedFiles().constFirst()); });
}

bool T_dlgTitlesEdit::AskDiscard() {
    return QMessageBox::question(this, windowTitle(), tr("Discard the changes?")) ==
           QMessageBox::Yes;
}

// --- keys

/// Many texts are not thrown away for one wrong key.
void T_dlgTitlesEdit::reject() {
    if (!changed || AskDiscard()) QDialog::reject();
}

/// Enter in a text is not yet OK.
void T_dlgTitlesEdit::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool onButton = qobject_cast<QAbstractButton*>(focusWidget()) != nullptr;
    if (enter && event->modifiers() & Qt::ControlModifier)
        accept();
    else if (!enter || onButton)
        QDialog::keyPressEvent(event);
}

} // namespace tern7
