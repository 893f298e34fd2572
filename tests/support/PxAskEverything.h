#pragma once

class PxProductTypeDescription;
class PxTheme;
class QString;

/**
 * Asks a record everything it can answer, with arguments an application should not, but may pass:
 * for tests that want to see it survive, or answer the same again: any int may be asked.
 */
QString pxAskEverything(const PxProductTypeDescription &description);
QString pxAskEverything(const PxTheme &theme);
