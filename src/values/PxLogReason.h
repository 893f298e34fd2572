#pragma once

#include <QDebug>

/**
 * Tells at debug level why the loader refused a file, after the warning that the file is not read.
 *
 * A tool for the authors of files knows the reason by this function's name and shows it.
 */
inline void pxLogReason(const QString &reason)
{
    QMessageLogger(nullptr, 0, "pxLogReason").debug().noquote() << reason;
}
