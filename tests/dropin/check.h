#ifndef CALVIX_TESTS_DROPIN_CHECK_H
#define CALVIX_TESTS_DROPIN_CHECK_H

#include <stdio.h>

/* The longest wait, in milliseconds: a limit against hangs, out of reach on the busiest machine. */
#define AGAINST_HANGS 600000

/* What these programs expect, one line on standard output for each that did not hold. */
static int failedChecks;

#define CHECK(condition)                                                                                               \
    ((condition) ? (void)0 : (void)(++failedChecks, printf("%s:%d: not so: %s\n", __FILE__, __LINE__, #condition)))

/* For calls that answer with an error number: says which one came instead. */
#define CHECK_ANSWER(expected, call) CheckAnswer((expected), (call), #call, __LINE__)

static inline void CheckAnswer(unsigned long expected, unsigned long answer, const char* call, int line)
{
    if (answer != expected)
    {
        ++failedChecks;
        printf("line %d: %lu in place of %lu from %s\n", line, answer, expected, call);
    }
}

/* What main returns. */
static inline int CheckedExitCode(void)
{
    printf(failedChecks == 0 ? "all as expected\n" : "%d checks failed\n", failedChecks);
    return failedChecks == 0 ? 0 : 1;
}

#endif
