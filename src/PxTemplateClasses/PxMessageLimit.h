#pragma once

/** Of the messages of one kind about one file so many are logged, and then how many more there are. */
constexpr int pxMaximumMessages = 100;
