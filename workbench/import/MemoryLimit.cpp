// SPDX-License-Identifier: MIT
#include "workbench/import/MemoryLimit.h"

#include "workbench/modelstream/ImportExit.h"

#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ADDRESS_SANITIZER
#endif
#endif

#ifdef ADDRESS_SANITIZER

#include <atomic>
#include <cstddef>

// Not every compiler comes with the header that declares these.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void*,
                                                                       std::size_t),
                                                         void (*given)(const volatile void*));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void* block);

// The sanitizer reserves terabytes of addresses for itself, so a limit on them is out of the
// question, and what it keeps back of the freed memory would count against one on real memory.
// What the program itself holds is counted instead.

namespace {

std::atomic<qint64> memoryLeft;

void countTaken(const volatile void*, std::size_t size)
{
    if ((memoryLeft -= static_cast<qint64>(size)) < 0)
        _exit(ImportOutOfMemory);
}

void countGiven(const volatile void* block)
{
    if (block)
        memoryLeft += static_cast<qint64>(__sanitizer_get_allocated_size(block));
}

} // namespace

// Asked by the sanitizer before anything else runs. Whoever waits for the answer should take its
// findings for the crashes that they are.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "abort_on_error=1:disable_coredump=1";
}

bool limitMemory(qint64 bytes)
{
    memoryLeft = bytes;
    return __sanitizer_install_malloc_and_free_hooks(countTaken, countGiven) > 0;
}

#else

#include <new>
#include <sys/resource.h>

bool limitMemory(qint64 bytes)
{
    std::set_new_handler([] { _exit(ImportOutOfMemory); });
    const rlimit values{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
    return setrlimit(RLIMIT_AS, &values) == 0;
}

#endif
