#pragma once

#include <QStringList>

/**
 * Different names with one hash, whatever the seed: `qHash()` of a text is a sum that can be solved
 * for. Letters and digits only.
 */
QStringList pxCollidingNames(int count);
