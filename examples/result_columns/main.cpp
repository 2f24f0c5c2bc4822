// The columns of a query: the result fields panel, its editor dialog and the titles editor over the
// sample structure.
//
//     result_columns STRUCTURE            shows the panel
//     result_columns STRUCTURE FOLDER     saves pictures in several looks instead
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <tern7/KRFldPnl.h>
#include <tern7/kdbstruc.h>
#include <tern7/rfldedit.h>
#include <tern7/titledit.h>

using namespace tern7;

namespace {

class TWindow : public QWidget {
public:
    explicit TWindow(const char* structureFile) {
        structure.LoadFromFile(structureFile);
        query.OnChange = [this](TKQuery&) { ShowSQL(); };
        panel->SetResultFields(&Columns());
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(panel);
        auto* buttons = new QHBoxLayout;
        AddButton(buttons, "Edit columns...", [this] { panel->EditResultFields(); });
        AddButton(buttons, "Titles...", [this] { panel->EditTitles(); });
        layout->addLayout(buttons);
        layout->addWidget(sql);
        sql->setTextInteractionFlags(Qt::TextSelectableByMouse);
        resize(560, 420);
    }

    TRFieldList& Columns() { return query.QResult().ResultFields(); }

    void Fill() {
        const TKQueryUpdate update(query);
        Columns().AddByExpression("Customer", TSortingType::stNoSort, "{customers.name}");
        Columns().AddByExpression("Country", TSortingType::stAscending, "{countries.name}");
        Columns().AddByExpression("Orders", TSortingType::stNoSort, "COUNT({orders.order_id})");
        Columns().AddByExpression("Turnover", TSortingType::stDescending,
                                  "SUM({order_lines.unit_price} * {order_lines.quantity})");
    }

    TKCustomDBStructure structure;
    TKQuery query{&structure};
    TKQueryEditor editor{query};
    TKResultFieldsPanel* panel = new TKResultFieldsPanel(this);

private:
    template <class Call>
    void AddButton(QHBoxLayout* into, const char* text, Call call) {
        auto* button = new QPushButton(text, this);
        connect(button, &QPushButton::clicked, this, call);
        into->addWidget(button);
    }

    void ShowSQL() {
        try {
            query.BuildQuery();
            sql->setText(QString::fromStdString(query.QResult().GetSQL().Text()));
        } catch (const EKTernError& error) {
            sql->setText(error.what());
        }
    }

    QLabel* sql = new QLabel(this);
};

QPalette Dark() {
    QPalette dark(QColor(53, 56, 60), QColor(43, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::Link, QColor(110, 170, 255));
    dark.setColor(QPalette::Highlight, QColor(46, 90, 160));
    return dark;
}

void SavePictures(const char* structureFile, const QDir& folder, const QString& look,
                  const QString& language = {}, bool narrow = false) {
    TWindow window(structureFile);
    window.Fill();
    if (narrow) window.panel->setFixedWidth(190);
    TStrings titles = DefaultQueryTitles();
    if (!language.isEmpty()) {
        titles = LanguageTitles(language);
        window.panel->SetTitles(LanguageResultFieldsPanelTitles(language));
    }
    const auto save = [&](QWidget& widget, const char* what) {
        widget.show();
        widget.activateWindow();
        QCoreApplication::processEvents();
        widget.grab().save(folder.filePath(look + '-' + what + ".png"));
    };
    save(window, "panel");
    T_dlgRFieldsEdit editor(window.Columns(), titles, &window);
    if (narrow) editor.resize(editor.minimumSizeHint());
    editor.SetHelp([] {});
    editor.Fields()->Tree()->expandItem(editor.Fields()->Tree()->topLevelItem(0));
    editor.Fields()->Tree()->topLevelItem(0)->child(1)->setSelected(true);
    save(editor, "editor");
    editor.Draft()->SetExpression(3, "SUM({Unit price} * {Quantty})");
    editor.ColumnsView()->setFocus();
    editor.ColumnsView()->setCurrentIndex(editor.ColumnsView()->model()->index(3, 1));
    editor.Fields()->SearchField()->setText("name");
    save(editor, "problem");
    T_dlgTitlesEdit titlesEditor(&window);
    titlesEditor.SetDefTitles(DefaultQueryTitles());
    titlesEditor.Init(titles);
    if (narrow) titlesEditor.resize(titlesEditor.minimumSizeHint());
    save(titlesEditor, "titles");
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    if (argc < 2) {
        qWarning("usage: result_columns STRUCTURE [FOLDER]");
        return 2;
    }
    if (argc < 3) {
        TWindow window(argv[1]);
        window.Fill();
        window.show();
        return QApplication::exec();
    }
    const QDir folder(argv[2]);
    folder.mkpath(".");
    SavePictures(argv[1], folder, "light");
    SavePictures(argv[1], folder, "german", "de");
    SavePictures(argv[1], folder, "narrow", "de", true);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    SavePictures(argv[1], folder, "arabic", "ar");
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setPalette(Dark());
    SavePictures(argv[1], folder, "dark");
    return 0;
}
