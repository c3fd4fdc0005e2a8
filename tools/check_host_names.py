#!/usr/bin/env python3
"""Reports host names in built programs: an address of a server is configuration and stands in no program.

Usage: check_host_names.py PROGRAM... The names behind "://", names that begin with "www.", and names in the large
domains are looked for in the bytes of each program. The namespaces of file formats are the exception.
"""
import pathlib
import re
import sys

HOST = re.compile(rb"[a-z][a-z0-9+.-]*://([A-Za-z0-9][A-Za-z0-9.-]*)"
                  rb"|\b(www\.[A-Za-z0-9][A-Za-z0-9.-]*)"
                  rb"|\b([A-Za-z0-9][A-Za-z0-9-]*\.(?:com|net|org))\b")

# Hosts of XML namespaces: names of file formats, never fetched.
NAMESPACES = {
    "www.w3.org",
    "schemas.openxmlformats.org",
    "schemas.microsoft.com",
    "purl.org",
    "www.inkscape.org",
}


def is_namespace(host):
    return host in NAMESPACES or any(name.endswith("." + host) for name in NAMESPACES)


def hosts_in(data):
    """Every host name of a program's bytes, once, in order."""
    hosts = {next(group for group in found if group).decode() for found in HOST.findall(data)}
    return sorted(host for host in hosts if not is_namespace(host))


def findings(programs):
    for program in programs:
        for host in hosts_in(pathlib.Path(program).read_bytes()):
            yield f"{program}: holds the host name {host}"


if __name__ == "__main__":
    found = list(findings(sys.argv[1:]))
    print("\n".join(found) or "No program holds a host name.")
    sys.exit(1 if found else 0)
