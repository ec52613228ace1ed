#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""check_sbom.py LIST...: reads NAME.spdx.json, the lists of what is in the packages, and compares them
with the packages NAME beside them: the checksum of the package, the fields that SPDX 2.3 demands, and
that everything that is named is described."""

import hashlib
import json
import re
import sys

DEMANDED = {
    "document": ["spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace",
                 "creationInfo", "packages", "files", "relationships"],
    "package": ["SPDXID", "name", "downloadLocation", "filesAnalyzed", "licenseConcluded",
                "licenseDeclared", "copyrightText"],
    "file": ["SPDXID", "fileName", "checksums", "licenseConcluded", "copyrightText"],
}
IDENTIFIER = re.compile(r"SPDXRef-[A-Za-z0-9.-]+")


def faults_of(path):
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    with open(path.removesuffix(".spdx.json"), "rb") as file:
        sha256 = hashlib.sha256(file.read()).hexdigest()
    parts = [("document", document)]
    parts += [("package", package) for package in document["packages"]]
    parts += [("file", file) for file in document["files"]]
    for kind, part in parts:
        for field in DEMANDED[kind]:
            if field not in part:
                yield f"a {kind} lacks {field}"
    identifiers = [part["SPDXID"] for _, part in parts]
    for identifier in identifiers:
        if not IDENTIFIER.fullmatch(identifier) or identifiers.count(identifier) > 1:
            yield f"{identifier} is no identifier or is there twice"
    for relation in document["relationships"]:
        for end in ("spdxElementId", "relatedSpdxElement"):
            if relation[end] not in identifiers:
                yield f"{relation[end]} is related to something but not described"
    if document["packages"][0]["checksums"][0]["checksumValue"] != sha256:
        yield "the package has another checksum"
    names = [file["fileName"] for file in document["files"]]
    wanted = ["LICENSE"] if "-source." in path else ["Licenses.txt", "Acronyms.dat", "ReadMe.txt"]
    for name in wanted:
        if not any(found.endswith("/" + name) for found in names):
            yield f"the package does not contain {name}"


def main():
    faults = [f"{path}: {fault}" for path in sys.argv[1:] for fault in faults_of(path)]
    for fault in faults:
        print(fault)
    print(f"{len(sys.argv) - 1} lists, {len(faults)} faults")
    sys.exit(1 if faults else 0)


main()
