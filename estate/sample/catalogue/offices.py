# SPDX-License-Identifier: GPL-2.0-or-later
"""What surveyors, clerks and programmers use, and the suites."""

from .model import (
    AGNIESZKA,
    DAEMONS,
    DEVELOPMENT,
    DOCUMENTATION,
    LIBRARIES,
    MAEL,
    MAPS,
    ODON,
    OFFICE,
    RENATE,
    TAMSIN,
    THORA,
    WENYUAN,
    Part,
    Source,
    Update,
    said,
)

OFFICES: tuple[Source, ...] = (
    Source(
        "dykemap", "8.1", 2, ODON, MAPS,
        family="Maps are drawn from the board's own survey and may be printed and passed on freely.",
        parts=(
            Part(
                "dykemap", "tool", 5400, "Maps of dykes, ditches and polders",
                "Shows and edits the map of the board's district: dykes with their heights, "
                "ditches with their owners, culverts, pumping stations and their catchments.\n\n"
                "Every line on the map says who measured it, when, and how well. Where two surveys "
                "disagree, both are shown until somebody goes out and looks. Sections can be cut "
                "anywhere and compared with the profile that the permit demands; what is too low "
                "is drawn in red, what is too steep in orange.\n\n"
                "Sheets are delivered in two packages, for the districts north and south of the "
                "canal.",
                requires=("libpolder.so.1()(64bit)", "dykemap-data-north", "glyphhouse-text"),
            ),
            Part(
                "dykemap-data-north", "data", 7800, "Map sheets north of the canal",
                "Sheets 1 to 46.",
                arch="noarch",
            ),
            Part(
                "dykemap-data-south", "data", 8200, "Map sheets south of the canal",
                "Sheets 47 to 93.",
                installed=False,
                arch="noarch",
            ),
        ),
        updates=(
            Update("8.2-1", "Draw culverts under the road, not on it"),
        ),
    ),
    Source(
        "dykemap-lidar", "0.3", 1, ODON, MAPS,
        repository="extras",
        family="Needs a newer libpointcloud than the one in extras; the preview repository has it.",
        parts=(
            Part(
                "dykemap-lidar", "tool", 1900, "Heights from the air for dykemap",
                "Computes dyke heights from laser flights.",
                installed=False,
                requires=("dykemap", "libpointcloud >= 3"),
            ),
        ),
    ),
    Source(
        "pointcloud", "2.6", 1, ODON, LIBRARIES,
        license="BSD-3-Clause",
        repository="extras",
        parts=(
            Part(
                "libpointcloud", "lib", 3100, "Holds clouds of measured points",
                "Stores and thins out clouds of some hundred million points.",
                installed=False,
            ),
        ),
        updates=(
            Update("3.0-0.1", "Store points by tile", "preview"),
        ),
    ),
    Source(
        "polder", "1.12", 1, WENYUAN, LIBRARIES,
        license="LGPL-2.1-or-later",
        parts=(
            Part(
                "libpolder", "lib", 1170, "Geometry of areas that lie below the water",
                "Areas, volumes and flow directions on uneven ground.",
                provides=("libpolder.so.1()(64bit)",),
            ),
            Part(
                "libpolder-devel", "devel", 210, "Headers for programs that use libpolder",
                "What is needed to compile programs against libpolder.",
                installed=False,
                group=DEVELOPMENT,
                requires=("libpolder",),
            ),
        ),
    ),
    Source(
        "levelbook", "3.0", 2, TAMSIN, MAPS,
        arch="noarch",
        parts=(
            Part(
                "levelbook", "tool", 190, "Levelling records",
                "Takes the readings of a levelling, adjusts the loop and prints the sheet for signature.",
            ),
        ),
    ),
    Source(
        "theodolite", "4.4", 1, TAMSIN, MAPS,
        repository="extras",
        parts=(
            Part(
                "theodolite", "tool", 860, "Reduces angle and distance measurements",
                "Networks of up to 5000 points with full error propagation.",
                installed=False,
                requires=("libtheodolite = %{version}", "levelbook"),
            ),
            Part(
                "libtheodolite", "lib", 640, "Least squares for survey networks",
                "The adjustment behind theodolite, for programs of your own.",
                installed=False,
                group=LIBRARIES,
            ),
        ),
    ),
    Source(
        "noticeboard", "1.3", 1, THORA, OFFICE,
        arch="noarch",
        parts=(
            Part(
                "noticeboard", "tool", 520, "Public notices of the board as pages",
                "Writes notices, closures and the agenda of the council as pages that load over "
                "the slowest line.",
                requires=("quayside",),
            ),
            Part(
                "noticeboard-harbour", "data", 150, "A look for noticeboard in the colours of the harbour",
                "Blue, rust and white.",
                installed=False,
                requires=("noticeboard",),
            ),
        ),
    ),
    Source(
        "quayside", "2.4.9", 1, AGNIESZKA, DAEMONS,
        license="Apache-2.0",
        parts=(
            Part(
                "quayside", "daemon", 1890, "Serves pages over the web",
                "A web server for pages that seldom change.",
                requires=("libweir", "netnames"),
                scriptlets={
                    "post": 'echo "quayside: pages are served from /srv/quayside"\nexit 0',
                },
            ),
            Part(
                "quayside-tls", "lib", 340, "Sealed connections for quayside",
                "Lets quayside speak to browsers over sealed connections.",
                installed=False,
                requires=("quayside", "libsiegel", "fen-certificates"),
            ),
        ),
        updates=(
            Update("2.4.11-1", "Answer requests for a range that begins at the end"),
        ),
    ),
    Source(
        "minutes", "0.8", 2, RENATE, OFFICE,
        arch="noarch",
        parts=(
            Part(
                "minutes", "tool", 240, "Minutes of meetings, from the agenda to the signature",
                "Takes the agenda, keeps the list of those present, counts votes, and numbers resolutions.",
                requires=("rollcall",),
            ),
        ),
    ),
    Source(
        "rollcall", "1.9", 1, RENATE, OFFICE,
        arch="noarch",
        parts=(
            Part(
                "rollcall", "tool", 130, "Names and offices of staff and council",
                "The list of people that other programs ask. It keeps what was true at any date.",
            ),
        ),
        updates=(
            Update("1.10-1", "Sort Å, Ø and Þ where their bearers expect them"),
        ),
    ),
    Source(
        "spoonbill", "3.1", 1, THORA, OFFICE,
        parts=(
            Part(
                "spoonbill", "tool", 2480, "Looks at pictures",
                "Leafs through folders of pictures, as those from the dyke inspections, and notes "
                "place and damage beside each.",
                requires=("libreedml",),
            ),
            Part(
                "spoonbill-raw", "lib", 1520, "Undeveloped pictures for spoonbill",
                "Lets spoonbill read what cameras write before they make a picture of it.",
                installed=False,
                requires=("spoonbill",),
            ),
        ),
        updates=(
            Update("3.1.2-1", "Turn pictures that were taken upside down under bridges"),
        ),
    ),
    Source(
        "heron", "12.0", 4, MAEL, OFFICE,
        parts=(
            Part(
                "heron", "tool", 3350, "A patient text editor",
                "Waits motionless and strikes fast.",
                requires=("heron-spelling",),
            ),
            Part(
                "heron-spelling", "data", 1720, "Word lists for heron",
                "Words of the water trades in six languages.",
                arch="noarch",
                requires=("tongues-common",),
            ),
        ),
    ),
    Source(
        "ledgerhouse", "6.2", 1, RENATE, OFFICE,
        repository="extras",
        family="Ledgerhouse follows the accounting rules for water boards in their present form.",
        parts=(
            Part(
                "ledgerhouse", "tool", 4100, "Book-keeping for a drainage board",
                "Dyke taxes, contributions by hectare, and the cash box of each station.",
                installed=False,
                requires=("ledgerhouse-server", "rollcall"),
            ),
            Part(
                "ledgerhouse-server", "daemon", 2650, "Holds the books of ledgerhouse",
                "Holds the books, and gives no entry back that isn't balanced.",
                installed=False,
                group=DAEMONS,
                requires=("libsiegel", "logbook"),
                scriptlets=said("ledgerhouse-server: an empty set of books was opened"),
            ),
            Part(
                "ledgerhouse-reports", "tool", 830, "Yearly reports from ledgerhouse",
                "The yearly report, the tax roll and the letter to the auditor.",
                installed=False,
                arch="noarch",
                requires=("ledgerhouse",),
            ),
        ),
    ),
    Source(
        "reedwriter", "2.0", 1, MAEL, OFFICE,
        repository="extras",
        parts=(
            Part(
                "reedwriter", "tool", 6900, "Writes letters, reports and expert opinions",
                "Documents with numbered sections, footnotes, tables and maps.",
                installed=False,
                requires=("libreedml", "glyphhouse-text", "reedwriter-templates"),
            ),
            Part(
                "reedwriter-templates", "data", 450, "Letterheads and forms for reedwriter",
                "The letterheads of the head office and of all stations, and the forms of the "
                "permit office.",
                installed=False,
                arch="noarch",
            ),
        ),
    ),
    Source(
        "oxbow", "3.6.1", 1, ODON, DEVELOPMENT,
        license="MIT",
        family=(
            "Oxbow is a small language for people who'd rather look at the water than at a program. A "
            "program in it reads from left to right, like a river on a map."
        ),
        parts=(
            Part(
                "oxbow", "tool", 1150, "A language for calculations with readings",
                "The interpreter, and the command that draws a series of readings on the "
                "terminal.\n\n"
                "Numbers carry their units, and a level can't be added to a discharge by mistake. "
                "A gap in a series stays a gap: no function of the language fills it unless it is "
                "told how.",
                requires=("oxbow-libs",),
            ),
            Part(
                "oxbow-libs", "lib", 2780, "What programs in oxbow rely on",
                "Series, calendars, units, interpolation and the usual statistics.",
            ),
            Part(
                "oxbow-devel", "devel", 330, "Embed oxbow into other programs",
                "What is needed to compile programs that call oxbow.",
                installed=False,
                requires=("oxbow-libs",),
            ),
            Part(
                "oxbow-doc", "doc", 2900, "A course in oxbow",
                "Twelve lessons with exercises, all of them with readings from the great flood.",
                installed=False,
                group=DOCUMENTATION,
                arch="noarch",
            ),
        ),
        updates=(
            Update("3.6.3-1", "Divide by zero hours without stopping"),
        ),
    ),
    Source(
        "millrace", "1.4", 1, ODON, "Development/Tools",
        arch="noarch",
        repository="extras",
        parts=(
            Part(
                "millrace", "tool", 470, "Builds programs in the right order",
                "Works out what has changed and turns only the wheels that hang on it.",
                installed=False,
                requires=("oxbow",),
            ),
        ),
    ),
    Source(
        "suites", "4", 1, TAMSIN, "Suite",
        license="CC0-1.0",
        arch="noarch",
        family="A suite has no files of its own. Removing it leaves its members where they are.",
        parts=(
            Part(
                "control-room", "suite", 0, "Everything for the control room of a pumping station",
                "Brings the panel, the pump watch, the duty roster and the handbook.",
                requires=("sluice-control-panel", "pumpwatch", "nightwatch", "handbook"),
            ),
            Part(
                "field-station", "suite", 0, "Everything for a survey team in the field",
                "Brings the tools for levelling, angles and rain.",
                installed=False,
                requires=("theodolite", "levelbook", "rainlog-radar", "dykemap", "causeway-radio"),
            ),
            Part(
                "board-office", "suite", 0, "Everything for the board's offices",
                "Brings writing, book-keeping, minutes and the noticeboard.",
                installed=False,
                requires=("reedwriter", "ledgerhouse", "minutes", "noticeboard"),
            ),
        ),
        updates=(
            Update("4.1-1", "Bring the keeper's handbook with the control room"),
        ),
    ),
)
