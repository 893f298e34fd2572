#pragma once

#include <QtGlobal>

/**
 * How much work and memory one run of the checks may take. Files that somebody wrote stay far below
 * each limit: these are for files that want to keep the program busy.
 */
namespace PxCheckLimits {

// What is reported. The first findings of a tag in a file are listed, the others counted.
constexpr int findingsOfTag = 100;
constexpr int messageLength = 1000; // letters
constexpr int quotedLength = 60;    // of a value in a message

// Guesses at what was meant. An author who makes more mistakes than this has not mistyped.
constexpr int comparedLength = 64;            // letters; no name of the format is longer
constexpr qint64 comparedLetters = 100000000; // pairs of them, for one set of names
constexpr int wordListLength = 1000;          // letters of a list with a wrong separator
constexpr int guessedImages = 500;            // in products, and in themes
constexpr int imagesOfDirectory = 2000;       // some directories never end

// What is checked of long lists: the first entries.
constexpr int listParts = 100000;
constexpr int searchedElements = 10000; // of a search for what was meant for a missing element
constexpr int answeredLength = 1000;    // letters of an attribute that an answer depends on
constexpr int barcodes = 100;           // each is compared with all before it
constexpr int redirects = 1000;         // the same
constexpr int surroundings = 1000;      // each is asked for each page
constexpr qint64 surroundingQueries = 1000000;

// Pages of a product with all of its page counts together; beyond these its pages count as unknown.
constexpr qint64 pages = 200000;
constexpr int pageCount = 10000;
// Pages that all default templates of a file are for, one by one.
constexpr int pagesOfDefaults = 100000;

} // namespace PxCheckLimits
