#ifndef WIDGETTEST_H
#define WIDGETTEST_H

// What the test of a widget is made of.
#include "finger.h"
#include "picture.h"
#include "repaints.h"
#include "samplefile.h"
#include "warnings.h"

#include <QtTest>
#include <cfloat>
#include <climits>

// Where the widgets are.
namespace ZIRVOUI {
}
using namespace ZIRVOUI;

/*! The base of the test of a widget: no warning of Qt's passes. */
class WidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { failOnWarnings(); }
};

#endif
