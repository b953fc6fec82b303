#!/bin/sh
#
# Links with LLVM's linker: g++ -wrapper cmake/link_with_lld.sh. The cross compiler has its own linker's path built in,
# and that one takes half a minute for a test program, being quadratic in the sections of an object; this one takes a
# quarter of a second. The compiler hands over the command that it would have run; the plug-in for link-time
# optimisation is left out.

case $1 in
    */collect2) shift ;;
    *) exec "$@" ;;
esac
for argument in "$@"; do
    shift
    case $argument in
        -plugin) skip=yes ;;
        -plugin-opt=*) ;;
        *) [ -n "$skip" ] || set -- "$@" "$argument"; skip= ;;
    esac
done
exec ld.lld --stack 2097152 "$@" # the other linker's; its own is half of that
