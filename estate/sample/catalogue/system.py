# SPDX-License-Identifier: GPL-2.0-or-later
"""What every machine has: release, accounts, daemons, libraries, languages, type."""

from .model import (
    AGNIESZKA,
    BASE,
    DAEMONS,
    DEVELOPMENT,
    DOCUMENTATION,
    FONTS,
    JORGEN,
    LIBRARIES,
    MAEL,
    ODON,
    RENATE,
    TAMSIN,
    THORA,
    TONGUES,
    WENYUAN,
    Part,
    Source,
    Update,
    said,
)

SYSTEM: tuple[Source, ...] = (
    Source(
        "fenmark-release", "4", 2, TAMSIN, BASE,
        license="MIT",
        arch="noarch",
        parts=(
            Part(
                "fenmark-release", "config", 6, "Fenmark release files",
                "The files by which a machine knows that it runs Fenmark, and which release of it.",
                provides=("system-release = 4", "system-release(releasever) = 4"),
                files={
                    "/etc/fenmark-release": "Fenmark release @VERSION@ (Spring Tide)\n",
                    "/etc/os-release": (
                        "NAME=Fenmark\n"
                        "ID=fenmark\n"
                        "VERSION_ID=@VERSION@\n"
                        'PRETTY_NAME="Fenmark @VERSION@ (Spring Tide)"\n'
                    ),
                },
            ),
        ),
        updates=(
            Update("4-5", "Name the autumn maintenance release"),
        ),
    ),
    Source(
        "fen-layout", "3.2", 1, TAMSIN, BASE,
        license="MIT",
        arch="noarch",
        parts=(
            Part(
                "fen-layout", "config", 3, "The directories that every station has",
                "The basic directory tree. All other packages rely on it, so it is the first one "
                "to be installed and the last one that could be removed.",
            ),
        ),
    ),
    Source(
        "fen-accounts", "5.1", 3, TAMSIN, BASE,
        epoch=1,
        license="MIT",
        arch="noarch",
        parts=(
            Part(
                "fen-accounts", "config", 9, "Accounts and roles of the board's staff",
                "The duty roles (keeper, surveyor, clerk, auditor) and the accounts that services "
                "run under. Personal accounts come from the directory in the head office and "
                "aren't part of it.",
                requires=("fen-layout",),
                scriptlets=said("fen-accounts: roles keeper, surveyor and clerk are set up"),
                files={
                    "/etc/passwd": (
                        "root:x:0:0:root:/root:/bin/sh\n"
                        "keeper:x:500:500:Keeper on duty:/home/keeper:/bin/sh\n"
                    ),
                    "/etc/group": (
                        "root:x:0:\n"
                        "keeper:x:500:\n"
                        "surveyor:x:501:\n"
                        "clerk:x:502:\n"
                        "auditor:x:503:\n"
                    ),
                },
            ),
        ),
        updates=(
            Update("1:5.2-1", "Add the role of the eel warden"),
        ),
    ),
    Source(
        "fen-certificates", "2025.1", 1, AGNIESZKA, BASE,
        license="CC0-1.0",
        arch="noarch",
        parts=(
            Part(
                "fen-certificates", "data", 310, "Certificates that the board's machines trust",
                "The bundle of authorities against which the stations verify each other and the "
                "head office.",
                requires=("fen-layout",),
            ),
        ),
    ),
    Source(
        "fen-keymaps", "1.18", 4, ODON, BASE,
        license="MIT",
        arch="noarch",
        parts=(
            Part(
                "fen-keymaps", "data", 640, "Keyboard layouts, among them those for gloved hands",
                "Layouts for the consoles in the control rooms. The layouts named after a season "
                "have wide dead zones between the keys, since nobody takes gloves off in a January "
                "gale.",
            ),
        ),
    ),
    Source(
        "sundial", "4.5", 2, JORGEN, DAEMONS,
        license="BSD-2-Clause",
        family=(
            "All readings in the board's archive carry the time that sundial keeps, so a station "
            "without it can't sign its daily sheet."
        ),
        parts=(
            Part(
                "sundial", "daemon", 480, "Keeps the clock of a station in step",
                "A small daemon that compares the clock of the machine with the time signal of the "
                "long-wave transmitter and with its neighbours, and slews it by at most half a "
                "second an hour.",
                requires=("libweir >= 2.1", "fen-layout"),
                scriptlets={
                    "post -p <lua>": 'print("sundial: clock source is the long-wave signal")',
                    "preun -p <lua>": (
                        "if tonumber(arg[2]) == 0 then\n"
                        '    print("sundial: handing the clock back to the hardware")\n'
                        "end"
                    ),
                },
            ),
        ),
        updates=(
            Update("4.6-1", "Survive the leap second at the end of the year"),
        ),
    ),
    Source(
        "bellringer", "2.0.7", 1, MAEL, DAEMONS,
        parts=(
            Part(
                "bellringer", "daemon", 210, "Starts jobs at their hour",
                "Reads the day plan of a machine and starts what is due. A job that was missed "
                "because the station had no current is made up for, unless the plan says that it "
                "would be pointless.",
                requires=("fen-layout",),
            ),
        ),
    ),
    Source(
        "logbook", "3.9.1", 2, AGNIESZKA, DAEMONS,
        family="Entries are kept for ten years, as the water act demands of whoever holds a sluice key.",
        parts=(
            Part(
                "logbook", "daemon", 890, "Records what happened on a machine",
                "Collects the messages of all services, numbers them without gaps, and seals each "
                "day with the checksum of the day before, so that nothing can be slipped in later.",
                requires=("libsiegel >= 1.9", "libweir"),
                scriptlets=said("logbook: volume opened, sealing at midnight"),
            ),
            Part(
                "logbook-rotate", "tool", 44, "Closes full volumes of the logbook",
                "Closes a volume when it is full or when the year ends, compresses it and puts it "
                "on the shelf.",
                arch="noarch",
                requires=("logbook", "strongbox"),
            ),
            Part(
                "logbook-viewer", "tool", 1450, "Reads the logbook in a window",
                "Shows the volumes of one or several machines side by side, with a search by day, "
                "by service and by the keeper on duty.",
                installed=False,
                requires=("logbook", "glyphhouse-text"),
            ),
        ),
        updates=(
            Update("3.9.2-1", "Number entries without gaps across a restart"),
        ),
    ),
    Source(
        "siegel", "1.9.4", 1, WENYUAN, LIBRARIES,
        license="LGPL-2.1-or-later",
        also_i686=True,
        family=(
            "Siegel is the board's own small set of ciphers, checksums and signatures. It has no "
            "options to choose from: each task has one way to do it."
        ),
        parts=(
            Part(
                "libsiegel", "lib", 720, "Seals, checksums and signatures",
                "The library that signs daily sheets and encrypts what goes over the radio.",
                provides=("libsiegel.so.1()(64bit)",),
            ),
            Part(
                "siegel-tools", "tool", 130, "Sign and verify sheets from the command line",
                "The commands seal, unseal and witness.",
                group=BASE,
                requires=("libsiegel.so.1()(64bit)",),
            ),
            Part(
                "libsiegel-devel", "devel", 95, "Headers for programs that use libsiegel",
                "What is needed to compile programs against libsiegel.",
                installed=False,
                group=DEVELOPMENT,
                requires=("libsiegel",),
            ),
        ),
        updates=(
            Update("1.9.6-1", "Refuse seals whose date lies after the signature"),
        ),
    ),
    Source(
        "weir", "2.1.12", 1, WENYUAN, LIBRARIES,
        license="LGPL-2.1-or-later",
        also_i686=True,
        parts=(
            Part(
                "libweir", "lib", 260, "Event loop that holds back floods of messages",
                "Every daemon of the system waits in this library. It lets a configured number of "
                "events pass per second and keeps the others back in order, so that a broken "
                "sensor can't drown a station.",
                provides=("libweir.so.2()(64bit)",),
            ),
            Part(
                "libweir-devel", "devel", 120, "Headers for programs that use libweir",
                "What is needed to compile programs against libweir.",
                installed=False,
                group=DEVELOPMENT,
                requires=("libweir",),
            ),
        ),
    ),
    Source(
        "reedml", "2.9.3", 2, ODON, LIBRARIES,
        license="MIT",
        parts=(
            Part(
                "libreedml", "lib", 1340, "Reads and writes structured documents",
                "A parser that takes documents in small pieces as they arrive over slow lines.",
            ),
        ),
    ),
    Source(
        "strongbox", "1.34", 1, RENATE, BASE,
        parts=(
            Part(
                "strongbox", "tool", 980, "Packs files into archives and takes them out again",
                "Archives carry the checksum of each file, and can be repaired from every tenth block.",
                requires=("libsiegel",),
            ),
        ),
    ),
    Source(
        "backhoe", "0.9.8", 5, RENATE, BASE,
        arch="noarch",
        parts=(
            Part(
                "backhoe", "tool", 350, "Carries copies of a machine to the archive at night",
                "Digs through the file tree, carries what has changed since the last night to the "
                "archive, and fills up after itself. A copy can be mounted like a disk.",
                requires=("strongbox", "bellringer", "drawbridge-clients"),
            ),
        ),
    ),
    Source(
        "netnames", "1.2.1", 1, JORGEN, DAEMONS,
        license="BSD-2-Clause",
        parts=(
            Part(
                "netnames", "daemon", 610, "Finds the addresses of stations by their names",
                "Answers from the last list it had when the line to the head office is down.",
                requires=("libweir", "causeway"),
            ),
        ),
    ),
    Source(
        "causeway", "6.0", 3, JORGEN, BASE,
        family="Which lines a station has, and in which order they are tried, stands in /etc/causeway.conf.",
        parts=(
            Part(
                "causeway", "tool", 540, "Brings up the lines of a station",
                "Sets up cable, directional radio and the emergency modem, and changes from one to "
                "the next when a line falls silent.",
                requires=("fen-layout", "libweir"),
                scriptlets=said("causeway: keeping the present line up"),
            ),
            Part(
                "causeway-radio", "daemon", 770, "Directional radio for stations beyond the cable",
                "Drives the radios on the masts, and lowers the speed before the line breaks in "
                "rain or snow.",
                installed=False,
                requires=("causeway", "libsiegel"),
            ),
        ),
        updates=(
            Update("6.1-1", "Try the emergency modem last, not first"),
        ),
    ),
    Source(
        "drawbridge", "9.3", 2, WENYUAN, DAEMONS,
        license="BSD-2-Clause",
        parts=(
            Part(
                "drawbridge", "daemon", 1120, "Lets keepers work on a machine from afar",
                "Opens a sealed line to those whose key is on the list, and draws it up when the "
                "shift ends.",
                requires=("libsiegel", "fen-accounts"),
            ),
            Part(
                "drawbridge-clients", "tool", 860, "Work on another machine from this one",
                "The commands cross and carry.",
                group=BASE,
                requires=("libsiegel",),
            ),
        ),
    ),
    Source(
        "postern", "2.11", 1, THORA, DAEMONS,
        parts=(
            Part(
                "postern", "daemon", 1730, "Delivers messages between machines and people",
                "Holds messages as long as no line is up. Alarm messages go before all others, "
                "whatever their size.",
                requires=("netnames", "libsiegel"),
            ),
        ),
    ),
    Source(
        "printhall", "1.7.5", 2, THORA, DAEMONS,
        license="Apache-2.0",
        parts=(
            Part(
                "printhall", "daemon", 2240, "Queues for the printers of an office",
                "Queues, quotas and cover sheets.",
                requires=("libweir", "printhall-drivers"),
            ),
            Part(
                "printhall-drivers", "data", 3900, "Descriptions of the printers in use",
                "Descriptions of all the printers that the board has bought since it keeps records "
                "of them.",
                group=BASE,
                arch="noarch",
            ),
        ),
    ),
    Source(
        "tongues", "4.0", 2, MAEL, TONGUES,
        license="CC0-1.0",
        arch="noarch",
        family=(
            "Translations are the work of keepers and clerks in their winter evenings. Corrections are "
            "welcome at the address of the packager."
        ),
        parts=(
            Part(
                "tongues-common", "lang", 420, "What all translations share",
                "Names of the tide stations, units and dates in all languages of the coast.",
            ),
            Part(
                "tongues-de", "lang", 1180, "Deutsche Übersetzungen für alle Meldungen",
                "Alle Meldungen der Schöpfwerke und Siele auf Deutsch, geprüft von der Außenstelle "
                "Süderkoog.",
                requires=("tongues-common",),
            ),
            Part(
                "tongues-nl", "lang", 1140, "Nederlandse vertalingen van alle meldingen",
                "Alle meldingen van de gemalen en sluizen, met de namen van het waterschap zoals "
                "die in de keur geschreven zijn.",
                requires=("tongues-common",),
            ),
            Part(
                "tongues-pl", "lang", 1010, "Polskie tłumaczenia wszystkich komunikatów",
                "Komunikaty stacji pomp i śluz po polsku, razem z układem dat i jednostek.",
                installed=False,
                requires=("tongues-common",),
            ),
            Part(
                "tongues-is", "lang", 740, "Íslenskar þýðingar á öllum skilaboðum",
                "Skilaboð dælustöðva á íslensku. Orðasafnið er enn í smíðum.",
                installed=False,
                requires=("tongues-common",),
            ),
        ),
    ),
    Source(
        "glyphhouse", "2.37", 1, ODON, FONTS,
        license="OFL-1.1",
        arch="noarch",
        parts=(
            Part(
                "glyphhouse-text", "data", 2870, "Typefaces for reading",
                "An upright and an italic in four weights, drawn for signs that are read through rain.",
            ),
            Part(
                "glyphhouse-mono", "data", 1310, "Typefaces of one width",
                "For tables of readings. Zero and O, one and l can't be taken for each other.",
            ),
            Part(
                "glyphhouse-symbols", "data", 940, "Signs of the waterways",
                "All signs of the waterway code, and the marks of the old land registers.",
                installed=False,
            ),
        ),
    ),
    Source(
        "handbook", "4.1", 1, TAMSIN, DOCUMENTATION,
        license="CC-BY-SA-4.0",
        arch="noarch",
        parts=(
            Part(
                "handbook", "doc", 5200, "The keeper's handbook",
                "What a keeper has to know: duties by hour and by season, the meaning of the "
                "alarms, whom to wake, and what to do first when the water is already in the "
                "engine hall.\n\n"
                "The chapters on ice and on the storm flood plan are printed and hung beside the "
                "door as well. Whoever changes them here has to change the paper too.",
            ),
        ),
        updates=(
            Update("4.2-1", "Rewrite the chapter on ice after the February review"),
        ),
    ),
    Source(
        "lampkeeper", "1.14.2", 1, AGNIESZKA, DAEMONS,
        family="A lamp is green, amber or red, and says since when. There is nothing else to configure.",
        parts=(
            Part(
                "lampkeeper", "daemon", 1260, "Watches the machines and lights a lamp for each",
                "Asks each machine every minute how it is, and shows the answers on one board.",
                requires=("lampkeeper-client", "postern"),
                scriptlets=said("lampkeeper: board is lit"),
            ),
            Part(
                "lampkeeper-client", "daemon", 230, "Answers the lampkeeper",
                "Answers with the state of disks, lines, batteries and services.",
                requires=("libweir",),
            ),
            Part(
                "lampkeeper-web", "tool", 690, "The lamp board as a page",
                "The board for those who have a browser and no control room.",
                installed=False,
                arch="noarch",
                requires=("lampkeeper", "quayside"),
            ),
        ),
        updates=(
            Update("1.15.0-1", "Light amber when a battery is older than its warranty"),
        ),
    ),
)
