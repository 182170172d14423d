// What the panel tells of its work, in the middle of its window.
#ifndef NOTICES_H
#define NOTICES_H

#include <ZToastDialog>
#include <functional>

namespace Notices {

/*! A message at the bottom of the window of \a page; it goes by itself. */
void toast(QWidget *page, ToastType type, const QString &text);

/*!
 * Blurs the window of \a page, which takes no taps meanwhile, shows a spinner with \a text before
 * it for so many \a ms, and then calls \a done.
 */
void wait(QWidget *page, const QString &text, int ms, const std::function<void()> &done);

} // namespace Notices

#endif
