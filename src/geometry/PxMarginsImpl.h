#pragma once

#include "PxProductPropertiesExport.h"

#include <QPoint>
#include <QSharedData>
#include <QSize>

/** The record that copies of PxMargins share; applications use PxMargins. */
class PXPRODUCTPROPERTIES_EXPORT PxMarginsImpl : public QSharedData
{
public:
    PxMarginsImpl() = default;
    ///@{
    /** The same as the function of this name of PxMargins. */
    PxMarginsImpl(int top, int bottom, int left, int right);

    int top() const { return m_top; }
    int bottom() const { return m_bottom; }
    int left() const { return m_left; }
    int right() const { return m_right; }
    QPoint topLeft() const { return QPoint(m_left, m_top); }
    QPoint bottomRight() const { return QPoint(m_right, m_bottom); }
    QSize totalMarginWH() const;
    bool allNull() const;
    ///@}

private:
    int m_top = 0;
    int m_bottom = 0;
    int m_left = 0;
    int m_right = 0;
};
