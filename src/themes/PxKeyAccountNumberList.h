#pragma once

#include <QList>

/** The numbers of the key accounts to which something is offered. */
using PxKeyAccountNumberList = QList<int>;
