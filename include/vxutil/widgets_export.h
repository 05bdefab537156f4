// Symbol visibility of the vxutil_widgets shared library (see export.h for the core's).
#pragma once

#if defined(VXUTIL_STATIC) && !defined(VXUTIL_WIDGETS_BUILDING)
#define VXUTIL_WIDGETS_API
#elif defined(_WIN32)
#ifdef VXUTIL_WIDGETS_BUILDING
#define VXUTIL_WIDGETS_API __declspec(dllexport)
#else
#define VXUTIL_WIDGETS_API __declspec(dllimport)
#endif
#else
#define VXUTIL_WIDGETS_API __attribute__((visibility("default")))
#endif
