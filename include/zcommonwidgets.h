#ifndef ZCOMMONWIDGETS_H
#define ZCOMMONWIDGETS_H

#include "zcommonwidgets_export.h"

/*!
 * The library's marker: it holds nothing and does nothing.
 *
 * Constructing one proves that an application was built and linked against the library.
 */
class ZCOMMONWIDGETS_EXPORT Zcommonwidgets
{
public:
    Zcommonwidgets();
};

#endif
