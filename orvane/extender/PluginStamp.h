#pragma once

#include <QtGlobal>

#include <string>

/// \file
/// The stamp of a plug-in: a line of text that names the plug-in interface and the binary interface of the compiler.
///
/// A library that was compiled with this header has the stamp as an ELF note, which has no symbol. The host reads it
/// before it loads the library, since loading a library runs its code, and refuses a library with another stamp. The
/// note has the owner "Orvane", the type 1 and the text as its contents.

#if __has_include("orvane/extender/InterfaceHash.h")

#include "orvane/extender/InterfaceHash.h"

#define ORVANE_TEXT_OF(x) #x
#define ORVANE_TEXT(x) ORVANE_TEXT_OF(x)

// What decides on the layout of the classes of Qt and of the C++ library.
#if defined(_GLIBCXX_DEBUG)
#define ORVANE_LIBRARY_ABI "libstdc++ with debug containers"
#elif defined(_GLIBCXX_USE_CXX11_ABI)
#define ORVANE_LIBRARY_ABI "libstdc++ C++11 ABI " ORVANE_TEXT(_GLIBCXX_USE_CXX11_ABI)
#elif defined(_LIBCPP_ABI_VERSION)
#define ORVANE_LIBRARY_ABI "libc++ ABI " ORVANE_TEXT(_LIBCPP_ABI_VERSION)
#else
#define ORVANE_LIBRARY_ABI "another C++ library"
#endif

/// Such as "5f0c2a7be1d94833 (libstdc++ C++11 ABI 1, Qt 6)".
#define ORVANE_PLUGIN_STAMP ORVANE_INTERFACE_HASH " (" ORVANE_LIBRARY_ABI ", Qt " ORVANE_TEXT(QT_VERSION_MAJOR) ")"

#if defined(__ELF__)
// Not in a group of its own, or linkers that remove unused sections would remove it.
__asm__(".pushsection .note.orvane,\"a\",%note\n"
        ".balign 4\n"
        ".long 2f - 1f\n"
        ".long 4f - 3f\n"
        ".long 1\n"
        "1: .asciz \"Orvane\"\n"
        "2: .balign 4\n"
        "3: .asciz \"" ORVANE_PLUGIN_STAMP "\"\n"
        "4: .balign 4\n"
        ".popsection\n");
#endif

#endif
