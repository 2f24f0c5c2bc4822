#include <tern7/ui/panels/db_structure.h>

#include <tern7/ui/support/screen_services.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

TKDBStructure::TKDBStructure(QWidget* parent) : TFormComponent(parent) {
    FillScreenServices(structure.Services);
    structure.OnChange = [this](TKCustomDBStructure&) { emit changed(); };
}

TKDBStructure::~TKDBStructure() {
    structure.OnChange = nullptr;
}

QByteArray TKDBStructure::StructString() const {
    return loadError.isEmpty() ? QByteArray::fromStdString(structure.GetStructString())
                               : unreadText;
}

void TKDBStructure::SetStructString(const QByteArray& text) {
    try {
        structure.SetStructString(std::string_view(text.constData(), size_t(text.size())));
        loadError.clear();
        unreadText.clear();
    } catch (const EKTernError& error) {
        qWarning("%s: %s", qPrintable(objectName()), error.what());
        loadError = ToQt(error.what());
        unreadText = text;
    }
}

QString TKDBStructure::HelpFileName() const {
    return ToQt(structure.HelpFileName);
}

void TKDBStructure::SetHelpFileName(const QString& name) {
    structure.HelpFileName = FromQt(name);
}

} // namespace tern7
