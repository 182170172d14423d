//! [hello]
#include <QApplication>
#include <ZToastDialog>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ZIRVOUI::ZToastDialog toast(ToastConfirm, "Settings saved");
    toast.setFixedSize(420, 200);
    return toast.exec(); // it closes itself after three seconds
}
//! [hello]
