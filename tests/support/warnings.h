#ifndef WARNINGS_H
#define WARNINGS_H

/*! From now on a warning that Qt prints fails the test function it is printed in. */
void failOnWarnings();

#endif
