#pragma once

#include <QList>
#include <QString>

class PxProductType;
class PxProductTypeDescription;

/** With how many pages a product is shown, and what to say if it is not offered with them. */
namespace PxPageCounts {

/** The count with which the product is sold, else the first of those offered, else 1. */
int standard(const PxProductTypeDescription &product, const QList<int> &offered);
/** The next smaller and next larger count that exist; nothing if the count itself is offered. */
QList<int> nearest(const QList<int> &offered, int pageCount);
/** "NAME is not offered with 27 pages, the nearest are 26 and 28" */
QString notOffered(const PxProductType &type, const QList<int> &offered, int pageCount);

} // namespace PxPageCounts
