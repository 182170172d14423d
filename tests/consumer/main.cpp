#include <QApplication>
#include <QSvgRenderer>
#include <ZToastDialog>
#include <zcommonwidgets.h>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Zcommonwidgets marker;
    ZIRVOUI::ZToastDialog toast(ToastPrompt, QStringLiteral("installed"));
    toast.setDelayMS(0);
    const bool drawsBody = toast.grab().toImage().pixelColor(toast.rect().center()).alpha() > 0;
    return drawsBody && toast.exec() == QDialog::Rejected && !QSvgRenderer().isValid() ? 0 : 1;
}
