/* SPDX-License-Identifier: MIT
 *
 * The pages of the set-up, each of which changes its part of the settings.
 */
#ifndef DEVSETUP_PAGES_H
#define DEVSETUP_PAGES_H

#include "settings.h"

void page_overview(struct settings* settings);
void page_network(struct settings* settings);
void page_time(struct settings* settings);
void page_services(struct settings* settings);
void page_account(struct settings* settings);
void page_logs(struct settings* settings);
void page_commands(struct settings* settings);

#endif
