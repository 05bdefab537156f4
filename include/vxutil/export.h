// Symbol visibility of the vxutil shared library.
//
// Sources of the library are compiled with VXUTIL_BUILDING; programs that link the static
// variant (the test suites) define VXUTIL_STATIC so that nothing is imported.
#pragma once

#if defined(VXUTIL_STATIC) && !defined(VXUTIL_BUILDING)
#define VXUTIL_API
#elif defined(_WIN32)
#ifdef VXUTIL_BUILDING
#define VXUTIL_API __declspec(dllexport)
#else
#define VXUTIL_API __declspec(dllimport)
#endif
#else
#define VXUTIL_API __attribute__((visibility("default")))
#endif
