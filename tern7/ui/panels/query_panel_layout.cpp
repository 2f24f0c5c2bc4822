// Which rows have controls, and where everything stands. Computed when it is needed: after a change
// a layout is posted, and whoever asks before it comes gets it at once.

#include <algorithm>
#include <cstdlib>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/flat_check_box.h>
#include <tern7/ui/controls/round_button.h>
#include <tern7/ui/panels/accessible_panel.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

namespace {

/// A hidden row leaves its line empty: its number goes on fixing the places of the others.
bool IsShown(const TFilterRow& row) {
    return !row.Hidden() && row.Visible();
}

/// Rows beyond the edges that have controls too, so that keys lead out of the page.
constexpr int spareLines = 1;

} // namespace

void TKQueryPanel::MeasureLine() {
    const TKRndBtn button(this);
    const TFlatCheckBox box(this);
    textHeight = ternTextHeight(QStringLiteral("W"), font());
    checkBoxWidth = box.sizeHint().width();
    geometry.LineHeight =
        std::max({button.sizeHint().height(), box.sizeHint().height(), textHeight});
    buttonWidth = geometry.LineHeight;
    verticalScrollBar()->setSingleStep(geometry.LineHeight + geometry.RowSpace);
    horizontalScrollBar()->setSingleStep(geometry.TabSpace);
}

void TKQueryPanel::SetGeometryValue(int& member, int value) {
    if (member == value) return;
    member = value;
    MeasureLine();
    widest = 0;
    Invalidate();
}

void TKQueryPanel::Invalidate(bool redraw) {
    redrawn |= redraw;
    if (layoutPosted) return;
    layoutPosted = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

bool TKQueryPanel::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && layoutPosted) {
        Lay();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) // before actions with the same keys
        event->setAccepted(TakesKey(static_cast<QKeyEvent&>(*event)));
    return QAbstractScrollArea::event(event);
}

void TKQueryPanel::PlaceAllRows() {
    linesKnown = false;
    Lay();
}

void TKQueryPanel::RefreshPanel() {
    query->SetStyle(appearance->Style());
    editor->SetNonEmptyBrackets(appearance->Has(TQPAppearance::aoNonEmptyBrackets));
    titlesKnown = false;
    ReadTitles();
    MeasureLine();
    linesKnown = false;
    viewsFresh = false;
    widest = 0;
    Invalidate();
}

const TRowLines& TKQueryPanel::Lines() {
    BuildLines();
    return lines;
}

void TKQueryPanel::BuildLines() {
    if (linesKnown) return;
    lines.Build(*query);
    linesKnown = redrawn = true;
    linesTold = false;
}

void TKQueryPanel::Lay() {
    if (laying) return;
    {
        const QScopedValueRollback isLaying(laying, true);
        layoutPosted = false;
        BuildLines();
        SetScrollRanges();
        MakeViews();
        if (static_cast<int>(views.size()) >= lines.Count())
            widest = 0; // all rows are measured now
        PlaceViews();
        SetScrollRanges(); // the widest row may be a new one
        PlaceAddRow();
        ChainFocus();
    }
    // behind the controls' own: Qt draws an opaque ground that is asked for first, with all that
    // stands on it, and then the controls once more
    if (std::exchange(redrawn, false)) viewport()->update();
    if (!std::exchange(linesTold, true) && accessibleRows) accessibleRows->LinesPlaced();
}

int TKQueryPanel::LabelLeft(int level, bool header) const {
    const bool box = !header && appearance->Has(TQPAppearance::aoShowCheckBoxes);
    return geometry.LevelLeft(level) + buttonWidth + geometry.ElemSpace +
           (box ? checkBoxWidth + geometry.ElemSpace : 0);
}

int TKQueryPanel::ContentHeight() const {
    const int bottom = lines.Count() > 0 ? geometry.LineBottom(lines.Count() - 1) : 0;
    const bool addRow = appearance->Has(TQPAppearance::aoShowAddRow);
    return (addRow ? geometry.AddRowTop(bottom) + textHeight : bottom) + geometry.HeaderTop;
}

int TKQueryPanel::ContentWidth() const {
    return widest + geometry.HeaderLeft;
}

void TKQueryPanel::SetScrollRanges() {
    const QSize room = viewport()->size();
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setRange(0, std::max(ContentHeight() - room.height(), 0));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setRange(0, std::max(ContentWidth() - room.width(), 0));
}

TFilterRowView& TKQueryPanel::MakeView(TFilterRow& row) {
    std::unique_ptr<TFilterRowView>& view = views[&row];
    if (view) {
        if (!viewsFresh) view->Refresh();
        return *view;
    }
    // one that has the same controls, if there is one
    const auto alike = std::find_if(freeViews.rbegin(), freeViews.rend(), [&](const auto& unused) {
        return unused->Row().IsBracket() == row.IsBracket();
    });
    if (alike == freeViews.rend()) {
        view = std::make_unique<TFilterRowView>(*this, row);
    } else {
        view = std::move(*alike);
        freeViews.erase(std::next(alike).base());
        view->ShowRow(row);
    }
    return *view;
}

/// Rows that come into sight take over the views of those that left it.
void TKQueryPanel::MakeViews() {
    const int top = verticalScrollBar()->value();
    const int first = std::max(geometry.LineAt(top) - spareLines, 0);
    const int last =
        std::min(geometry.LineAt(top + viewport()->height()) + spareLines, lines.Count() - 1);
    for (auto view = views.begin(); view != views.end();) {
        TFilterRow& row = view->second->Row();
        const int line = IsShown(row) ? lines.LineOf(row) : -1;
        const bool inSight = line >= first && line <= last;
        if (line < 0) {
            view = DropView(view);
        } else if (!inSight && !view->second->InUse()) {
            if (waitingView == view->second.get()) waitingView = nullptr;
            freeViews.push_back(std::move(view->second));
            view = views.erase(view);
        } else {
            if (!inSight) MakeView(row);
            ++view;
        }
    }
    for (int line = first; line <= last; ++line)
        if (IsShown(*lines.At(line).row)) MakeView(*lines.At(line).row);
    freeViews.clear();
    viewsFresh = true;
}

void TKQueryPanel::PlaceViews() {
    for (const auto& [row, view] : views) {
        const int line = lines.LineOf(*row);
        const int left = geometry.LevelLeft(lines.At(line).level);
        widest = std::max(widest, left + view->Width());
        view->Place(line, left);
    }
}

void TKQueryPanel::PutAt(QWidget& widget, int left, int top) const {
    const int x = left - horizontalScrollBar()->value();
    const int y = top - verticalScrollBar()->value();
    const QSize size = widget.size();
    widget.move(ReadsFromRight() ? Mirrored(x, size.width(), viewport()->width()) : x, y);
    if (auto* edit = qobject_cast<TDropDownCustomEdit*>(&widget); edit && edit->Dropped())
        edit->AdjustPlacement();
}

void TKQueryPanel::PlaceAddRow() {
    if (!appearance->Has(TQPAppearance::aoShowAddRow)) return addRowLabel->hide();
    addRowLabel->SetCaption(Title("ttlClickToAdd"));
    addRowLabel->resize(addRowLabel->sizeHint());
    int left = geometry.HeaderLeft, top = geometry.HeaderTop;
    if (const int count = lines.Count()) {
        const TRowLines::TLine& last = lines.At(count - 1);
        left = LabelLeft(last.level, !last.row->Parent());
        const int labelTop = geometry.ElementTop(count - 1, textHeight);
        top = geometry.AddRowTop(labelTop + textHeight);
    }
    widest = std::max(widest, left + addRowLabel->width());
    PutAt(*addRowLabel, left, top);
    addRowLabel->show();
}

/// Tab goes through the rows from top to bottom.
void TKQueryPanel::ChainFocus() {
    std::vector<std::pair<int, TFilterRowView*>> ordered;
    for (const auto& [row, view] : views)
        ordered.emplace_back(lines.LineOf(*row), view.get());
    std::sort(ordered.begin(), ordered.end());
    QWidget* before = this; // else the rows come behind the rest of the form
    auto chain = [&](QWidget* widget) {
        setTabOrder(before, widget);
        before = widget;
    };
    for (const auto& [line, view] : ordered)
        for (QWidget* widget : view->Controls())
            chain(widget);
    if (addRowLabel->isVisibleTo(viewport())) chain(addRowLabel);
    // with something inside to go to, the panel itself is no stop on the way
    setFocusPolicy(before != this ? Qt::ClickFocus : Qt::StrongFocus);
}

// --- asking

TFilterRowView* TKQueryPanel::ExistingView(const TFilterRow& row) const {
    const auto found = views.find(&row);
    return found == views.end() ? nullptr : found->second.get();
}

TFilterRowView* TKQueryPanel::RowView(TFilterRow& row) {
    const int line = Lines().LineOf(row);
    if (line < 0) return nullptr;
    Lay(); // the scroll bars must know how far they reach
    ScrollToLine(line);
    MakeView(row);
    Lay();
    return ExistingView(row);
}

TFilterRowView* TKQueryPanel::ViewOf(const QWidget* widget) const {
    for (const auto& [row, view] : views) {
        if (view->GetControlIndex(widget) >= 0) return view.get();
        for (QWidget* control : view->Controls()) {
            const auto* label = qobject_cast<TDropDownLabel*>(control);
            if (label && label->Dropped() && label->EditControl() == widget) return view.get();
        }
    }
    return nullptr;
}

QRect TKQueryPanel::LineRect(int line) const {
    return {0, geometry.LineTop(line) - verticalScrollBar()->value(), viewport()->width(),
            geometry.LineHeight};
}

TFilterRow* TKQueryPanel::RowAt(const QPoint& inViewport) {
    const int line = geometry.LineAt(inViewport.y() + verticalScrollBar()->value());
    return line >= 0 && line < Lines().Count() ? lines.At(line).row : nullptr;
}

int TKQueryPanel::LinesInSight() const {
    return std::max(viewport()->height() / std::max(geometry.LineHeight + geometry.RowSpace, 1), 1);
}

void TKQueryPanel::ScrollToLine(int line) {
    QScrollBar* bar = verticalScrollBar();
    const int top = line == 0 ? 0 : geometry.LineTop(line);
    const int bottom = geometry.LineBottom(line) + geometry.RowSpace;
    if (top < bar->value())
        bar->setValue(top);
    else if (bottom > bar->value() + viewport()->height())
        bar->setValue(bottom - viewport()->height());
}

void TKQueryPanel::ScrollToControl(const QWidget& control) {
    const TFilterRowView* view = ViewOf(&control);
    const int line = view ? Lines().LineOf(view->Row()) : -1;
    if (line < 0) return;
    ScrollToLine(line);
    // counted from where reading begins
    const int room = viewport()->width();
    const QRect place = control.geometry();
    const int start = ReadsFromRight() ? room - 1 - place.right() : place.left();
    const int end = start + place.width() + geometry.HeaderLeft;
    const int step = start < 0 ? start - geometry.HeaderLeft : std::min(end - room, start);
    if (start < 0 || end > room)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + step);
}

QSize TKQueryPanel::sizeHint() const {
    const int line = geometry.LineHeight + geometry.RowSpace;
    return {fontMetrics().horizontalAdvance(u'x') * 70, line * 10};
}

QSize TKQueryPanel::minimumSizeHint() const {
    const int line = geometry.LineHeight + geometry.RowSpace;
    return {fontMetrics().horizontalAdvance(u'x') * 20, line * 3};
}

// --- events

/// By less than a page, what stays in sight is moved on the screen and not drawn again.
void TKQueryPanel::scrollContentsBy(int dx, int dy) {
    if (laying) return Invalidate();
    const QSize room = viewport()->size();
    const bool near = std::abs(dx) < room.width() && std::abs(dy) < room.height();
    if (near && !layoutPosted)
        viewport()->scroll(ReadsFromRight() ? -dx : dx, dy);
    else
        redrawn = true;
    Lay();
}

void TKQueryPanel::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    DbStruct(); // the form is whole now
}

void TKQueryPanel::resizeEvent(QResizeEvent*) {
    redrawn = true;
    Lay();
}

void TKQueryPanel::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::LocaleChange:
    case QEvent::LanguageChange:
        editor->TranslateSteps();
        RefreshPanel();
        break;
    default:
        break;
    }
}

} // namespace tern7
