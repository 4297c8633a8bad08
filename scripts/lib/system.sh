# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the scripts that make another Debian in a folder and run something in it, as root.

# The address of the archive of Debian that this machine's apt uses, or $LUMARO_MIRROR; nothing when there is none.
archive_of_debian() {
    [[ -z ${LUMARO_MIRROR:-} ]] || { echo "$LUMARO_MIRROR"; return; }
    # Those of updates and security have other suites in them.
    apt-get indextargets --format '$(ORIGIN) $(RELEASE) $(REPO_URI)' 'Created-By: Packages' 2>/dev/null |
        awk '$1 == "Debian" && $2 !~ /-/ { print $3; exit }'
}

# make_system SUITE FOLDER [ARGUMENT OF mmdebstrap...]: a small Debian of that suite.
make_system() {
    local suite=$1 root=$2 address
    shift 2
    address=$(archive_of_debian)
    [[ -n $address ]] || { echo "apt names no archive of Debian here; put its address into LUMARO_MIRROR" >&2; return 1; }
    mmdebstrap --quiet --mode=root --variant=apt "$@" "$suite" "$root" "$address" ||
        { echo "$suite can't be made from $address" >&2; return 1; }
    if [[ -e /etc/resolv.conf ]]; then cp -L /etc/resolv.conf "$root/etc/resolv.conf"; fi
}

# run_in FOLDER [--bind FROM TO] [VARIABLE=VALUE...] COMMAND...: runs it there with no other environment than a plain one.
# What is mounted, and every process, ends with the name spaces; where they are refused it goes without /proc, this
# machine's /dev and what should be bound.
run_in() {
    local root=$1 from='' to=''
    shift
    if [[ $1 == --bind ]]; then from=$2 to=$3; shift 3; fi
    local spaces=(unshare --mount --pid --fork --kill-child)
    if ! "${spaces[@]}" true 2>/dev/null; then
        echo "name spaces are refused here: going on without /proc and this machine's /dev" >&2
        spaces=()
    fi
    # shellcheck disable=SC2016
    local inside='
root=$1 from=$2 to=$3 spaces=$4; shift 4
refused() { echo "$1 can not be mounted; going on without" >&2; }
if ((spaces)); then
    mount -t proc proc "$root/proc" || refused /proc
    mount --rbind /dev "$root/dev" || refused /dev
    if [[ -n $from ]]; then
        mkdir -p "$root$to"
        mount --bind "$from" "$root$to" || refused "$from"
    fi
fi
exec chroot "$root" /usr/bin/env -i "$@"
'
    "${spaces[@]}" bash -euo pipefail -c "$inside" inside "$root" "$from" "$to" "${#spaces[@]}" HOME=/root \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 "TERM=${TERM:-dumb}" "$@"
}
