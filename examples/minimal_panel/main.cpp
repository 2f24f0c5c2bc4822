// A window in which a user asks questions of a database: the query panel over a structure that was
// saved, and the statement below it.
//
//     minimal_panel examples/sample/sample.str [QUERY.qry]
#include <QApplication>
#include <QPlainTextEdit>
#include <QSplitter>

#include <tern7/kquerpnl.h>

using namespace tern7;

namespace {

QString StatementOf(TKQueryPanel& panel) {
    try {
        panel.BuildQuery();
        return QString::fromStdString(panel.QResult().GetSQL().Text());
    } catch (const EKTernError& error) { // a query without columns and conditions
        return QString::fromStdString(error.what());
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2) {
        qWarning("usage: minimal_panel STRUCTURE [QUERY]");
        return 2;
    }
    TKCustomDBStructure structure;
    QSplitter window(Qt::Vertical);
    auto* panel = new TKQueryPanel(&window);
    auto* statement = new QPlainTextEdit(&window);
    statement->setReadOnly(true);
    const auto show = [=](TKQueryPanel& shown) { statement->setPlainText(StatementOf(shown)); };
    try {
        structure.LoadFromFile(argv[1]);
        panel->SetDbStruct(&structure);
        if (argc > 2) panel->LoadFromFile(QString::fromLocal8Bit(argv[2]));
    } catch (const EKTernError& error) {
        qWarning("%s", error.what());
        return 1;
    }
    panel->OnChange = show;
    show(*panel);
    window.setWindowTitle("Questions of a trading house");
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
