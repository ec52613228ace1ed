#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""make_sbom.py KIND PACKAGE [FOLDER]: writes PACKAGE.spdx.json, the list of what is in a package.

KIND is deb, linux, windows or source. FOLDER has the unpacked files of a package that this script
cannot unpack: the installer. The list is in the format SPDX 2.3. The same package gives the same
list: the time is that of SOURCE_DATE_EPOCH."""

import datetime
import hashlib
import json
import os
import re
import subprocess
import sys
import tarfile
import zipfile

ENTRIES_LICENSE = "CC0-1.0"
VERA_LICENSE = "GFDL-1.1-no-invariants-or-later"

# What the programs of a package contain besides our code: name, the Debian package that it comes
# from on this machine or a function that knows its version, license, home page.
WX_PREFIX = os.environ.get("WX_PREFIX") or os.path.join(
    os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"),
    "brevilexicon", "wx-3.2-i686")


def png_version():
    with open(os.path.join(WX_PREFIX, "include/libpng16/png.h"), encoding="utf-8") as header:
        return re.search(r'#define PNG_LIBPNG_VER_STRING "(.+)"', header.read())[1]


def wx_version():
    return subprocess.run([os.path.join(WX_PREFIX, "bin/wx-config"), "--version-full"],
                          capture_output=True, text=True, check=True).stdout.strip()


HEADERS = [("CLI11", "libcli11-dev", "BSD-3-Clause", "https://github.com/CLIUtils/CLI11")]
INSIDE_WINDOWS_PROGRAMS = HEADERS + [
    ("wxWidgets", wx_version, "LGPL-2.0-or-later WITH WxWindows-exception-3.1",
     "https://www.wxwidgets.org"),
    ("NanoSVG", None, "Zlib", "https://github.com/memononen/nanosvg"),
    ("libpng", png_version, "libpng-2.0", "http://www.libpng.org/pub/png/libpng.html"),
    ("zlib", "libz-mingw-w64-dev", "Zlib", "https://zlib.net"),
    ("GCC runtime libraries", "g++-mingw-w64-i686-posix",
     "GPL-3.0-or-later WITH GCC-exception-3.1", "https://gcc.gnu.org"),
    ("mingw-w64", "mingw-w64-i686-dev", "ZPL-2.1", "https://www.mingw-w64.org"),
]
INSIDE_INSTALLER = [("NSIS", "nsis", "Zlib", "https://nsis.sourceforge.io")]


def version_of(package):
    if package is None:
        return None
    if callable(package):
        return package()
    answer = subprocess.run(["dpkg-query", "-W", "-f=${Version}", package],
                            capture_output=True, text=True, check=False)
    if answer.returncode != 0:
        sys.exit(f"make_sbom: {package} is not installed, so its version is unknown")
    return answer.stdout


def in_tar(archive):
    return [(member.name.removeprefix("./"), archive.extractfile(member).read())
            for member in archive if member.isfile()]


def files_of(kind, package, folder):
    """The names and contents of the files in a package, in the order of their names."""
    if folder:
        found = []
        for parent, _, names in os.walk(folder):
            for name in names:
                path = os.path.join(parent, name)
                with open(path, "rb") as file:
                    found.append((os.path.relpath(path, folder), file.read()))
    elif kind == "deb":
        with subprocess.Popen(["dpkg-deb", "--fsys-tarfile", package],
                              stdout=subprocess.PIPE) as unpacking:
            with tarfile.open(fileobj=unpacking.stdout, mode="r|") as archive:
                found = in_tar(archive)
    elif package.endswith(".zip"):
        with zipfile.ZipFile(package) as archive:
            found = [(name, archive.read(name)) for name in archive.namelist()
                     if not name.endswith("/")]
    else:
        with tarfile.open(package) as archive:
            found = in_tar(archive)
    return sorted(found)


def needed_libraries(package):
    """The names and versions in the field Depends of a Debian package."""
    depends = subprocess.run(["dpkg-deb", "-f", package, "Depends"],
                             capture_output=True, text=True, check=True).stdout
    for part in depends.strip().split(", "):
        name, _, condition = part.partition(" ")
        yield name, condition.strip("()") or None


class List:
    """The document, which grows by packages, files and how they are related."""

    def __init__(self, package):
        with open(package, "rb") as file:
            self.sha256 = hashlib.sha256(file.read()).hexdigest()
        name = os.path.basename(package)
        epoch = int(os.environ["SOURCE_DATE_EPOCH"])
        created = datetime.datetime.fromtimestamp(epoch, datetime.timezone.utc)
        home = os.environ["BRELEX_HOME_PAGE"]
        self.document = {
            "spdxVersion": "SPDX-2.3",
            "dataLicense": "CC0-1.0",
            "SPDXID": "SPDXRef-DOCUMENT",
            "name": name,
            "documentNamespace": f"{home}/spdx/{name}-{self.sha256}",
            "creationInfo": {
                "created": created.strftime("%Y-%m-%dT%H:%M:%SZ"),
                "creators": [f"Organization: {os.environ['BRELEX_PUBLISHER']}",
                             "Tool: make_sbom.py"],
            },
            "packages": [],
            "files": [],
            "relationships": [],
        }

    def relate(self, one, relation, other):
        self.document["relationships"].append(
            {"spdxElementId": one, "relationshipType": relation, "relatedSpdxElement": other})

    def add_package(self, name, version, license_id, home, **more):
        identity = "SPDXRef-" + "".join(c if c.isalnum() else "-" for c in name)
        entry = {"SPDXID": identity, "name": name, "downloadLocation": "NOASSERTION",
                 "filesAnalyzed": False, "licenseConcluded": license_id,
                 "licenseDeclared": license_id, "copyrightText": "NOASSERTION"}
        if version:
            entry["versionInfo"] = version
        if home:
            entry["homepage"] = home
        entry.update(more)
        self.document["packages"].append(entry)
        return identity

    def add_files(self, owner, files):
        sums = []
        for number, (name, content) in enumerate(files, 1):
            identity = f"SPDXRef-File-{number}"
            sha1 = hashlib.sha1(content).hexdigest()
            sums.append(sha1)
            self.document["files"].append({
                "SPDXID": identity, "fileName": "./" + name,
                "checksums": [
                    {"algorithm": "SHA1", "checksumValue": sha1},
                    {"algorithm": "SHA256",
                     "checksumValue": hashlib.sha256(content).hexdigest()}],
                "licenseConcluded": "NOASSERTION", "copyrightText": "NOASSERTION"})
            self.relate(owner, "CONTAINS", identity)
        return hashlib.sha1("".join(sorted(sums)).encode()).hexdigest()


def main():
    kind, package = sys.argv[1:3]
    folder = sys.argv[3] if len(sys.argv) > 3 else None
    result = List(package)
    home = os.environ["BRELEX_HOME_PAGE"]
    ours = result.add_package(
        "brevilexicon", os.environ["BRELEX_VERSION"],
        f"MIT AND {ENTRIES_LICENSE} AND {VERA_LICENSE}", home,
        filesAnalyzed=True, packageFileName=os.path.basename(package),
        supplier=f"Organization: {os.environ['BRELEX_PUBLISHER']}",
        copyrightText=os.environ["BRELEX_COPYRIGHT"],
        checksums=[{"algorithm": "SHA256", "checksumValue": result.sha256}])
    result.relate("SPDXRef-DOCUMENT", "DESCRIBES", ours)
    code = result.add_files(ours, files_of(kind, package, folder))
    result.document["packages"][0]["packageVerificationCode"] = {
        "packageVerificationCodeValue": code}
    if kind != "source":
        vera = result.add_package("V.E.R.A.", "1.24", VERA_LICENSE, "http://home.snafu.de/ohei",
                                  copyrightText="Copyright (C) 1993-2020 Oliver Heidelbach")
        result.relate(ours, "CONTAINS", vera)
    inside = {"deb": HEADERS, "linux": HEADERS, "windows": INSIDE_WINDOWS_PROGRAMS,
              "source": []}[kind] + (INSIDE_INSTALLER if folder else [])
    for name, debian_package, license_id, page in inside:
        part = result.add_package(name, version_of(debian_package), license_id, page)
        result.relate(ours, "STATIC_LINK", part)
    if kind == "deb":
        for name, version in needed_libraries(package):
            library = result.add_package(name, None, "NOASSERTION", None)
            if version:
                result.document["packages"][-1]["comment"] = f"version {version}"
            result.relate(ours, "DYNAMIC_LINK", library)
    with open(package + ".spdx.json", "w", encoding="utf-8") as file:
        json.dump(result.document, file, indent=2)
        file.write("\n")


main()
