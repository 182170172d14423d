#ifndef SNIPPETS_H
#define SNIPPETS_H

#include <QBoxLayout>

// The examples of the documentation.  Each shows something on the page of a screen.

void zClickLabel(QBoxLayout *page);
void zAdjustFontLabel(QBoxLayout *page);
void zScrollLabel(QBoxLayout *page);
void zResizableLabel(QBoxLayout *page);
void commonLabelWidget(QBoxLayout *page);
void zTextWidget(QBoxLayout *page);

void zSvgWidget(QBoxLayout *page);
void zGifWidget(QBoxLayout *page);
void maskWidget(QBoxLayout *page);

void zBaseDialog(QBoxLayout *page);
void zLoadingDialog(QBoxLayout *page);
void zToastDialog(QBoxLayout *page);

void zButton(QBoxLayout *page);
void roundedButton(QBoxLayout *page);
void circleButton(QBoxLayout *page);
void imageSwitchButton(QBoxLayout *page);
void namedSwitch(QBoxLayout *page);
void zImageButton(QBoxLayout *page);
void zRadioButton(QBoxLayout *page);
void switchButton(QBoxLayout *page);
void confirmedSwitch(QBoxLayout *page);
extern bool deviceAgrees;
extern int timesToldDevice;

void progressBar(QBoxLayout *page);
void circleProgess(QBoxLayout *page);
void hProgressAnime(QBoxLayout *page);
void rotateProgress(QBoxLayout *page);
void circularLoadingWidget(QBoxLayout *page);
void circularDelegate(QBoxLayout *page);
void loadingWidget(QBoxLayout *page);
void styleSheet(QBoxLayout *page);

void zSlider(QBoxLayout *page);
void zScrollBar(QBoxLayout *page);

void lineEdit(QBoxLayout *page);
void ipValidator(QBoxLayout *page);

#endif
