#ifndef STAGE_H
#define STAGE_H

#include "row.h"

enum Variant {
    Library,
    Bare,
    Fusion,
    Styled,
    Empty, // what a repaint costs that draws nothing
};

constexpr Variant AllVariants[] = {Library, Bare, Fusion, Styled, Empty};
constexpr const char *VariantNames[] = {"library", "bare", "fusion", "styled", "empty"};

/*! A window with one variant of a row in it, in front of a real backing store. */
class Stage
{
public:
    Stage(const Row &row, Variant variant);

    /*! Takes what moves on to its next frame. */
    void advance();
    void repaint();

    bool moves() const { return bool(m_row.advance); }
    /*! What the widget draws on a transparent ground, and what the window shows. */
    QVector<QImage> pictures();

private:
    QWidget *newWidget() const;
    void show();

    Row m_row;
    Variant m_variant;
    int m_frame = 0;
    QWidget m_window;
    QWidget *m_widget;
    QWidget *m_repainted;
};

/*! How far apart pictures are: in levels of 255 and in parts of all that they could differ. */
struct Difference
{
    int largest = 0;
    double share = 0;
};
Difference operator-(const QImage &one, const QImage &other);

// scripts/benchmark makes callgrind count the first of these, and write its count down at the
// second.
void countedRepaint(Stage &stage, bool isAdvanceCounted);
void tellCounted(const Row &row, Variant variant, int count);

#endif
