#include "allocations.h"

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<long> count{0};

} // namespace

// An executable's own functions take the place of glibc's, which stay there under other names.
#ifdef __GLIBC__
extern "C" {

void *__libc_malloc(size_t size);
void *__libc_calloc(size_t number, size_t size);
void *__libc_realloc(void *memory, size_t size);

void *malloc(size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void *calloc(size_t number, size_t size)
{
    ++count;
    return __libc_calloc(number, size);
}

void *realloc(void *memory, size_t size)
{
    ++count;
    return __libc_realloc(memory, size);
}

} // extern "C"
#endif

long allocationCount()
{
    return count;
}
