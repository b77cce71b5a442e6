// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// What a status text means; the colour comes from the tone, never from the
// code that sets the text.
enum class StatusTone {
    Requesting, // asking a master for its list
    Querying,   // asking the servers
    Done,       // finished, or a join started
    Failed,     // cancelled, timed out, not found, an error
    Hint,       // advice for the user
};
