// SPDX-License-Identifier: BSD-3-Clause
//
// measure [-u TEXT] RUNS -- COMMAND [ARG...] -- COMMAND [ARG...] [-- ...]
//
// Runs the commands in turns and prints a line for each: the median of the wall times in milliseconds and the median of
// the peak memory in KiB. A run lasts to the end of the process or, with -u, to the moment it first writes TEXT to
// standard error; then it gets SIGTERM.
//
// The peak is the process's own VmHWM, taken in an extra run when it is about to end: what wait4() tells includes the
// memory of the parent before exec.

#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

enum
{
    MaxCommands = 8,
    MaxRuns = 10000,
    MemoryRuns = 9
};

extern char **environ;

static const char *until;

static double now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return 1e3 * (double)time.tv_sec + 1e-6 * (double)time.tv_nsec;
}

static void fail(const char *what)
{
    perror(what);
    exit(1);
}

// Reads until the text has come, or the end. False if it has not come.
static int readUntil(int fd, const char *text)
{
    static char buffer[1 << 20];
    size_t length = 0;
    ssize_t size;
    while (length < sizeof(buffer) - 1 && (size = read(fd, buffer + length, sizeof(buffer) - 1 - length)) > 0) {
        length += (size_t)size;
        buffer[length] = '\0';
        if (strstr(buffer, text))
            return 1;
    }
    fprintf(stderr, "The program did not say \"%s\":\n%s\n", text, buffer);
    return 0;
}

static double wallTime(char **command)
{
    int output[2] = {-1, -1};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (until) {
        if (pipe2(output, O_CLOEXEC) != 0)
            fail("pipe");
        posix_spawn_file_actions_adddup2(&actions, output[1], STDERR_FILENO);
    }
    pid_t child;
    const double begin = now();
    const int error = posix_spawnp(&child, command[0], &actions, NULL, command, environ);
    if (error != 0) {
        errno = error;
        fail(command[0]);
    }
    posix_spawn_file_actions_destroy(&actions);
    double end = 0;
    int status;
    if (until) {
        close(output[1]);
        const int said = readUntil(output[0], until);
        end = now();
        kill(child, SIGTERM);
        close(output[0]);
        if (!said)
            exit(1);
    }
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (!until) {
        end = now();
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            fprintf(stderr, "%s failed\n", command[0]);
            exit(1);
        }
    }
    return end - begin;
}

static double peakOf(pid_t process)
{
    char path[64];
    char line[256];
    double peak = -1;
    snprintf(path, sizeof(path), "/proc/%d/status", (int)process);
    FILE *const file = fopen(path, "r");
    while (file && fgets(line, sizeof(line), file)) {
        if (sscanf(line, "VmHWM: %lf kB", &peak) == 1)
            break;
    }
    if (file)
        fclose(file);
    return peak;
}

static double peakMemory(char **command)
{
    int output[2];
    if (pipe2(output, O_CLOEXEC) != 0)
        fail("pipe");
    const pid_t child = fork();
    if (child == 0) {
        if (until)
            dup2(output[1], STDERR_FILENO);
        else
            ptrace(PTRACE_TRACEME, 0, NULL, NULL);
        execvp(command[0], command);
        _exit(127);
    }
    close(output[1]);
    double peak = -1;
    int status;
    if (until) {
        if (readUntil(output[0], until))
            peak = peakOf(child);
        kill(child, SIGTERM);
        close(output[0]);
        waitpid(child, &status, 0);
        return peak;
    }
    close(output[0]);
    waitpid(child, &status, 0); // at its exec
    ptrace(PTRACE_SETOPTIONS, child, NULL, (void *)PTRACE_O_TRACEEXIT);
    for (int number = 0;;) {
        ptrace(PTRACE_CONT, child, NULL, (void *)(long)number);
        if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status))
            return peak;
        number = 0;
        if (status >> 8 == (SIGTRAP | (PTRACE_EVENT_EXIT << 8)))
            peak = peakOf(child);
        else
            number = WSTOPSIG(status);
    }
}

static int byValue(const void *left, const void *right)
{
    const double difference = *(const double *)left - *(const double *)right;
    return (difference > 0) - (difference < 0);
}

static double median(double *values, int count)
{
    qsort(values, (size_t)count, sizeof(double), byValue);
    return count % 2 ? values[count / 2] : (values[count / 2 - 1] + values[count / 2]) / 2;
}

int main(int argc, char **argv)
{
    static double times[MaxCommands][MaxRuns];
    static double peaks[MaxCommands][MemoryRuns];
    char **commands[MaxCommands];
    int count = 0;
    int at = 1;
    if (at + 1 < argc && strcmp(argv[at], "-u") == 0) {
        until = argv[at + 1];
        at += 2;
    }
    const int runs = at < argc ? atoi(argv[at]) : 0;
    for (++at; at < argc; ++at) {
        if (strcmp(argv[at], "--") == 0 && at + 1 < argc && count < MaxCommands) {
            argv[at] = NULL;
            commands[count++] = argv + at + 1;
        }
    }
    if (runs < 1 || runs > MaxRuns || count == 0) {
        fprintf(stderr, "usage: measure [-u TEXT] RUNS -- COMMAND [ARG...] [-- COMMAND...]\n");
        return 2;
    }
    for (int i = 0; i < count; ++i)
        wallTime(commands[i]); // for the caches
    for (int run = 0; run < runs; ++run) {
        for (int i = 0; i < count; ++i)
            times[i][run] = wallTime(commands[i]);
    }
    for (int run = 0; run < MemoryRuns; ++run) {
        for (int i = 0; i < count; ++i)
            peaks[i][run] = peakMemory(commands[i]);
    }
    for (int i = 0; i < count; ++i)
        printf("%.4f %.0f\n", median(times[i], runs), median(peaks[i], MemoryRuns));
    return 0;
}
