#include "snippets.h"

#include <IPValidator>
#include <LineEdit>
#include <QGuiApplication>
#include <QInputMethod>
#include <ZButton>

using namespace ZIRVOUI;

void lineEdit(QBoxLayout *page)
{
    //! [LineEdit]
    auto *name = new LineEdit;
    name->setFontSize(24);
    name->setPlaceholderText("Name of the room");
    QObject::connect(name, &LineEdit::signal_focusIn, qApp->inputMethod(), &QInputMethod::show);
    QObject::connect(name, &LineEdit::signal_focusOut, qApp->inputMethod(), &QInputMethod::hide);
    page->addWidget(name);
    //! [LineEdit]
}

void ipValidator(QBoxLayout *page)
{
    //! [IPValidator]
    auto *address = new LineEdit;
    address->setValidator(new IPValidator(address));
    address->setText("192.168.0.");

    auto *next = new ZButton("Connect");
    next->setEnabled(address->hasAcceptableInput());
    QObject::connect(address, &LineEdit::textChanged, next,
                     [=] { next->setEnabled(address->hasAcceptableInput()); });
    page->addWidget(address);
    page->addWidget(next);
    //! [IPValidator]
}
