/* SPDX-License-Identifier: MIT
 *
 * Linked into programs that are tested from outside, in place of the C library's function: a wait
 * for a key lasts until there is one. Edition 1 throws away what was typed before a wait, and
 * between two waits a key could come at just that moment.
 */
#include <poll.h>
#include <stddef.h>
#include <time.h>

int poll(struct pollfd* lines, nfds_t count, int milliseconds)
{
    const struct timespec limit = {milliseconds / 1000, milliseconds % 1000 * 1000000L};
    const struct timespec patience = {5, 0};
    if (milliseconds < 0)
        return ppoll(lines, count, NULL, NULL);
    return ppoll(lines, count, milliseconds < 50 ? &limit : &patience, NULL);
}
