#pragma once

#include <QList>

/** The numbers of the key accounts that something is offered to. */
using PxKeyAccountNumberList = QList<int>;
