#pragma once
// Marks what the shared library exports: it is built with hidden visibility, so a class or
// function that an application may name carries ZML_EXPORT.
#if defined(__GNUC__)
#define ZML_EXPORT __attribute__((visibility("default")))
#else
#define ZML_EXPORT
#endif
