/* SPDX-License-Identifier: MIT
 *
 * Linked into programs that are tested from outside, in place of the C library's function: a
 * second passes whenever somebody looks at the clock, so that every second wait for a key polls.
 */
#include <time.h>

time_t time(time_t* result)
{
    static time_t now;
    ++now;
    if (result)
        *result = now;
    return now;
}
