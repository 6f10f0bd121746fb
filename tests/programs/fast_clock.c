/* SPDX-License-Identifier: MIT
 *
 * Linked into programs that are tested from outside, in place of the C library's functions: every
 * wait for a key that comes to nothing is over soon and has taken a second, so that it polls.
 */
#include <poll.h>
#include <stddef.h>
#include <time.h>

static time_t now;

time_t time(time_t* result)
{
    if (result)
        *result = now;
    return now;
}

int poll(struct pollfd* lines, nfds_t count, int milliseconds)
{
    const int wait = milliseconds >= 50;
    const struct timespec limit = {0, (wait ? 50 : milliseconds) * 1000000L};
    const int ready = ppoll(lines, count, &limit, NULL);
    now += wait && ready == 0;
    return ready;
}

/* What poll is called where flags harden. */
int __poll_chk(struct pollfd* lines, nfds_t count, int milliseconds, size_t room);
int __poll_chk(struct pollfd* lines, nfds_t count, int milliseconds, size_t room)
{
    (void)room;
    return poll(lines, count, milliseconds);
}
