#!/bin/sh
#
# Compiles with clang what is written for g++, mingw's or this system's: a compiler launcher for the tests, which clang
# compiles in half the time. Both follow one binary interface, so the tests link with a product that the other compiler
# made. The first argument is that compiler; the others are its command.

compiler=$1
shift
for argument in "$@"; do
    shift
    case $argument in
        "$compiler")
            set -- "$@" clang++
            case $compiler in
                *-w64-mingw32-*)
                    headers=$(dirname "$("$compiler" -print-libgcc-file-name)")/include/c++
                    set -- "$@" --target=x86_64-w64-mingw32 -femulated-tls \
                        -D__GXX_TYPEINFO_EQUALITY_INLINE=0 -D__GXX_MERGED_TYPEINFO_NAMES=0 \
                        -cxx-isystem "$headers" -cxx-isystem "$headers/x86_64-w64-mingw32" ;;
            esac ;;
        # A precompiled header that the other compiler left would be read while this one is made.
        *.gch)
            rm -f "$argument"
            set -- "$@" "$argument" ;;
        # Options that only the other compiler has.
        -fno-keep-inline-dllexport | -fpch-preprocess | -Wno-subobject-linkage | -Winvalid-pch | -Wa,-mbig-obj) ;;
        *) set -- "$@" "$argument" ;;
    esac
done
exec "$@"
