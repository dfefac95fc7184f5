#!/usr/bin/env bash
# Makes a sysroot: a folder with the libraries and headers of a Debian architecture, from the
# release that this machine runs and the mirror that it uses. The libraries of C++ are those of the
# cross compiler.
# Usage: packaging/make-sysroot.sh ARCH FOLDER
set -euo pipefail
arch=$1
sysroot=$(realpath -m "$2")
source=$("$(dirname "$0")/debian-source.sh")
read -r _ _ release _ <<< "$source"
compiler=$(dpkg-architecture --host-arch "$arch" --query DEB_HOST_GNU_TYPE 2>/dev/null)-g++
libraries=libc6-dev,libstdc++-$("$compiler" -dumpversion)-dev
libraries+=,libvterm-dev,qtbase5-dev,qtscript5-dev,rapidjson-dev

mkdir -p "${sysroot%/*}"
work=$(mktemp -d "$sysroot.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir "$work/root"

# Unpacks the board's packages without running their scripts. The .deb files are needed below, for
# the information about their libraries.
mmdebstrap --quiet --architectures="$arch" --variant=extract --skip=cleanup/apt \
    --include="$libraries" "$release" - "$source" \
    | tar -x -C "$work/root" --exclude=./dev --exclude=./proc --exclude=./sys

# Since Debian 13 all libraries are below /usr. Installing its base files would make this link, which
# the path of the dynamic loader needs.
[[ -e $work/root/lib ]] || ln -s usr/lib "$work/root/lib"

# The build runs this machine's moc.
ln -sf /usr/lib/qt5/bin/moc "$work/root/usr/lib/qt5/bin/moc"

# A package database for dpkg-shlibdeps: which package contains a library, by its path on this
# machine, and the symbols that the package declares for it.
database=$work/root/var/lib/dpkg
rm -rf "$database"
mkdir -p "$database/info" "$database/updates"
echo 1 > "$database/info/format"  # file names carry the architecture
printf '%s\n' "$(dpkg --print-architecture)" "$arch" > "$database/arch"
for deb in "$work"/root/var/cache/apt/archives/*.deb; do
    name=$(dpkg-deb --field "$deb" Package)
    same=$(dpkg-deb --field "$deb" Multi-Arch)
    [[ $same == same ]] && name+=:$arch
    dpkg-deb --ctrl-tarfile "$deb" \
        | tar -x -C "$work" --wildcards './symbols' './shlibs' 2>/dev/null || true
    [[ -e $work/symbols || -e $work/shlibs ]] || continue
    for kind in symbols shlibs; do
        [[ ! -e $work/$kind ]] || mv "$work/$kind" "$database/info/$name.$kind"
    done
    dpkg-deb --fsys-tarfile "$deb" | tar -t | sed "s|^\.|$sysroot|; s|/\$||" \
        > "$database/info/$name.list"
    { dpkg-deb --field "$deb" && printf 'Status: install ok installed\n\n'; } >> "$database/status"
done
rm -rf "$work/root/var/cache"
mv "$work/root" "$sysroot"
