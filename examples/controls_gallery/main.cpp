// Shows the controls; with a folder as argument it saves pictures of them in several looks instead.
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>

#include <examples/controls_gallery/gallery.h>
#include <examples/support/pictures.h>

namespace {

void Key(int key, const QString& text = {}) {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* target = popup && !popup->focusWidget() ? popup
                      : popup                        ? popup->focusWidget()
                                                     : QApplication::focusWidget();
    if (!target) return;
    QKeyEvent press(QEvent::KeyPress, key, {}, text);
    QCoreApplication::sendEvent(target, &press);
}

void SavePictures(const QDir& folder, const QString& look) {
    TGallery gallery;
    gallery.move(60, 0);
    gallery.show();
    gallery.activateWindow();
    const auto save = [&](const char* what) {
        Picture(gallery).save(folder.filePath(look + '-' + what + ".png"));
    };
    const auto discard = [&](tern7::TDropDownLabel* label) {
        label->DropUp(false);
        QCoreApplication::processEvents();
    };
    save("closed");
    gallery.button->setFocus();
    save("focus");
    gallery.edit->DropDown();
    save("edit");
    discard(gallery.edit);
    gallery.date->DropDown();
    save("date");
    discard(gallery.date);
    gallery.mask->DropDown();
    save("mask");
    discard(gallery.mask);
    gallery.popup->DropDown();
    Key(Qt::Key_End);
    Key(gallery.layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right);
    save("popup");
    discard(gallery.popup);
    gallery.longPopup->DropDown();
    save("long-popup");
    gallery.longPopup->Menu()->SearchField()->setText("1 ord");
    save("search");
    discard(gallery.longPopup);
    gallery.listBox->DropDown();
    save("list");
    discard(gallery.listBox);
    gallery.checkList->DropDown();
    save("check-list");
    discard(gallery.checkList);
    const QPoint at = gallery.mapToGlobal(QPoint(gallery.width() / 2, 60));
    for (tern7::TKPopupMenu* menu : {gallery.menu, gallery.scrolled}) {
        menu->Popup(at.x(), at.y());
        save(menu == gallery.menu ? "menu" : "scrolled-menu");
        menu->hide();
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    if (argc < 2) {
        TGallery gallery;
        gallery.show();
        return QApplication::exec();
    }
    const QDir folder(argv[1]);
    folder.mkpath(".");
    SavePictures(folder, "light");
    QApplication::setLayoutDirection(Qt::RightToLeft);
    SavePictures(folder, "rtl");
    QApplication::setLayoutDirection(Qt::LeftToRight);
    const QPalette light = QApplication::palette();
    QApplication::setPalette(Dark());
    SavePictures(folder, "dark");
    QApplication::setPalette(light);
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    QApplication::setFont(large);
    SavePictures(folder, "large");
    return 0;
}
