/* SPDX-License-Identifier: MIT
 *
 * Facts of this machine, read when they are asked for.
 */
#include "demo.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/statvfs.h>

static char szFact[48];

void readText(const char* szFile, char* szText, size_t size)
{
    size_t got = 0;
    FILE* file = fopen(szFile, "r");
    if (file) {
        got = fread(szText, 1, size - 1, file);
        fclose(file);
    }
    szText[got] = '\0';
}

void readProc(const char* szName, char* szText, size_t size)
{
    char szFile[512];
    const char* szProc = getenv("KULGUI_DEMO_PROC");
    snprintf(szFile, sizeof szFile, "%s/%s", szProc ? szProc : "/proc", szName);
    readText(szFile, szText, size);
}

long memoryEntry(const char* szName)
{
    char szText[4096];
    long nKibibytes = 0;
    readProc("meminfo", szText, sizeof szText);
    const char* szEntry = strstr(szText, szName);
    if (szEntry)
        sscanf(szEntry + strlen(szName), ": %ld", &nKibibytes);
    return nKibibytes / 1024;
}

int memoryPercent(void)
{
    const long nTotal = memoryEntry("MemTotal");
    return nTotal > 0 ? (int)(100 - 100 * memoryEntry("MemAvailable") / nTotal) : 0;
}

int diskPercent(void)
{
    struct statvfs disk;
    if (statvfs("/", &disk) != 0 || disk.f_blocks == 0)
        return 0;
    return (int)(100 - 100.0 * (double)disk.f_bavail / (double)disk.f_blocks);
}

static double loadAverage(int nForm)
{
    char szText[64];
    double load[3] = {0, 0, 0};
    readProc("loadavg", szText, sizeof szText);
    if (sscanf(szText, "%lf %lf %lf", &load[0], &load[1], &load[2]) != 3)
        return 0;
    return load[nForm % 3];
}

int loadPercent(void)
{
    return (int)(100 * loadAverage(0));
}

/* The first line of a file, as the fact. */
static void lineFact(const char* szName)
{
    readProc(szName, szFact, sizeof szFact);
    szFact[strcspn(szFact, "\n")] = '\0';
}

static void hostFact(int nForm)
{
    lineFact(nForm % 2 == 0 ? "sys/kernel/hostname" : "sys/kernel/domainname");
}

static void kernelFact(int nForm)
{
    lineFact(nForm % 2 == 0 ? "sys/kernel/osrelease" : "sys/kernel/ostype");
}

static void uptimeFact(int nForm)
{
    char szText[64];
    double nSeconds = 0;
    readProc("uptime", szText, sizeof szText);
    sscanf(szText, "%lf", &nSeconds);
    const long n = (long)nSeconds;
    if (nForm % 2 == 0)
        snprintf(szFact, sizeof szFact, "up %ld:%02ld:%02ld", n / 3600, n / 60 % 60, n % 60);
    else
        snprintf(szFact, sizeof szFact, "up %ld s", n);
}

static void loadFact(int nForm)
{
    static const int kMinutes[] = {1, 5, 15};
    snprintf(szFact, sizeof szFact, "load%d %.2f", kMinutes[nForm % 3], loadAverage(nForm));
}

static void memoryFact(int nForm)
{
    if (nForm % 2 == 0)
        snprintf(szFact, sizeof szFact, "mem %d %%", memoryPercent());
    else
        snprintf(szFact, sizeof szFact, "%ld MiB free", memoryEntry("MemAvailable"));
}

const char* factText(int nFact, int nForm)
{
    static void (*const kFacts[FACTS])(int) = {hostFact, kernelFact, uptimeFact, loadFact,
                                               memoryFact};
    szFact[0] = '\0';
    kFacts[nFact](nForm);
    return szFact;
}
