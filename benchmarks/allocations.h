#ifndef ALLOCATIONS_H
#define ALLOCATIONS_H

/*! Calls of malloc(), calloc() and realloc() by the whole process so far; 0 without glibc. */
long allocationCount();

#endif
