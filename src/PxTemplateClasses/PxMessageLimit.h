#pragma once

/** How many messages of one kind are logged about one file. One more message counts the rest. */
constexpr int pxMaximumMessages = 100;
