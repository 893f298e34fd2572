#include "geometry/PxMarginsImpl.h"

#include "geometry/PxClampedArithmetic.h"

PxMarginsImpl::PxMarginsImpl(int top, int bottom, int left, int right)
    : m_top(top)
    , m_bottom(bottom)
    , m_left(left)
    , m_right(right)
{}

QSize PxMarginsImpl::totalMarginWH() const
{
    return QSize(pxClampedSum(m_left, m_right), pxClampedSum(m_top, m_bottom));
}

bool PxMarginsImpl::allNull() const
{
    return m_top == 0 && m_bottom == 0 && m_left == 0 && m_right == 0;
}
