# SPDX-License-Identifier: GPL-2.0-or-later
"""What the pumping stations run: tides, rain, gates and pumps."""

from .model import (
    AGNIESZKA,
    DEVELOPMENT,
    DOCUMENTATION,
    JORGEN,
    LIBRARIES,
    MAEL,
    ODON,
    RENATE,
    STATION,
    TAMSIN,
    THORA,
    WATER,
    WENYUAN,
    Part,
    Source,
    Update,
    said,
)

WATERWORKS: tuple[Source, ...] = (
    Source(
        "tide", "3.4", 1, JORGEN, WATER,
        epoch=2,
        license="LGPL-2.1-or-later",
        also_i686=True,
        family=(
            "Heights are metres above the zero of the Süderkoog datum; times are the board's time, "
            "which has no summer."
        ),
        parts=(
            Part(
                "libtide", "lib", 830, "Computes tides from harmonic constants",
                "Computes the height of the tide at any of the board's stations from up to 114 "
                "constants, and fits constants to a series of readings.",
                group=LIBRARIES,
                provides=("libtide.so.3()(64bit)",),
            ),
            Part(
                "tidegauge", "daemon", 560, "Reads the tide gauges",
                "Reads floats, pressure cells and radar gauges, throws out the wash of passing "
                "ships, and writes one value a minute.",
                requires=("libtide.so.3()(64bit)", "sundial", "tidetables"),
                scriptlets={
                    "post": (
                        'if [ "$1" -gt 1 ]; then\n'
                        '    echo "tidegauge: gauges keep running, new readings in a minute"\n'
                        "else\n"
                        '    echo "tidegauge: no gauge is configured yet, see /etc/tidegauge.conf"\n'
                        "fi\n"
                        "exit 0"
                    ),
                },
            ),
            Part(
                "libtide-devel", "devel", 170, "Headers for programs that use libtide",
                "What is needed to compile programs against libtide.",
                installed=False,
                group=DEVELOPMENT,
                requires=("libtide = 2:%{version}",),
            ),
            Part(
                "tidegauge-doc", "doc", 2100, "How to set up and calibrate a tide gauge",
                "Drawings and worksheets for all types of gauges in use, with the calibration "
                "protocol that the hydrographic office accepts.",
                installed=False,
                group=DOCUMENTATION,
                arch="noarch",
            ),
        ),
        updates=(
            Update("2:3.5-1", "Throw out the wash of ferries as well"),
        ),
    ),
    Source(
        "tidetables", "2025", 1, JORGEN, WATER,
        license="CC-BY-4.0",
        arch="noarch",
        parts=(
            Part(
                "tidetables", "data", 6100, "High and low waters of the coming year",
                "The times and heights of all high and low waters at 61 stations.",
            ),
        ),
        updates=(
            Update("2025.1-1", "Correct Nordersiel, where the harbour mole was lengthened"),
        ),
    ),
    Source(
        "tidebook", "1.8.3", 6, RENATE, WATER,
        parts=(
            Part(
                "tidebook", "tool", 1490, "Keeps the book of observed tides",
                "The book of observed high and low waters, as a file per month. It is no longer "
                "developed: tideledger takes its place and reads its files.",
                requires=("libtide",),
            ),
        ),
    ),
    Source(
        "gaugefmt", "0.24", 2, ODON, WATER,
        license="MIT",
        parts=(
            Part(
                "gaugefmt", "tool", 380, "Converts readings from one format to another",
                "Understands 23 formats in which gauges, offices and neighbours deliver readings, "
                "and writes nine.",
                requires=("libreedml",),
            ),
        ),
    ),
    Source(
        "rainlog", "2.2", 1, THORA, WATER,
        parts=(
            Part(
                "rainlog", "daemon", 420, "Records rain, snow and hail",
                "Counts the tips of the rain gauges and sums them up by catchment.",
                requires=("libweir", "sundial"),
            ),
            Part(
                "rainlog-radar", "tool", 4700, "Rain from the pictures of the weather radar",
                "Estimates the rain over each catchment from radar pictures and corrects it by "
                "what the gauges on the ground have counted.",
                installed=False,
                requires=("rainlog", "libpolder", "stormcast-data"),
            ),
        ),
        updates=(
            Update("2.3-1", "Count hail by weight"),
        ),
    ),
    Source(
        "stormcast", "1.0.2", 1, THORA, WATER,
        repository="extras",
        parts=(
            Part(
                "stormcast", "tool", 2930, "Forecasts water levels in a storm",
                "Takes the wind forecast and the tide and computes the level at each dyke section "
                "for the next two days. Keep in mind that it knows nothing of breaches.",
                installed=False,
                requires=("libtide.so.3()(64bit)", "libpolder", "stormcast-data = %{version}"),
                scriptlets=said("stormcast: first forecast with the next wind data, within six hours"),
            ),
            Part(
                "stormcast-data", "data", 9300, "Sea bed and coast for stormcast",
                "Depths of the sea bed on a grid of two hundred metres, and heights of all dykes.",
                installed=False,
                arch="noarch",
            ),
        ),
    ),
    Source(
        "sluice-control", "5.3.1", 2, AGNIESZKA, STATION,
        family="No gate moves without two keys. The software can't change that, it only counts the keys.",
        parts=(
            Part(
                "sluice-control", "daemon", 1980, "Opens and closes the gates of a sluice",
                "Moves the gates by the water levels inside and outside, by the timetable of the "
                "navigation and by hand. Every movement is entered in the logbook before it "
                "begins.\n\n"
                "Three plans are kept for each sluice. The summer plan holds the inner level for "
                "the cattle, the winter plan draws it down before rain, and the storm plan shuts "
                "everything and wakes people. The change from one plan to the next is proposed by "
                "the program and decided by the keeper; if nobody decides within twenty minutes of "
                "a storm warning, the storm plan comes into force by itself.\n\n"
                "Sluices with two chambers, stop logs and tide doors are supported. Lifting "
                "bridges aren't: they belong to the road office, which has programs of its own and "
                "a telephone number.",
                requires=("libvalvebus.so.4()(64bit)", "tidegauge", "logbook"),
                scriptlets={
                    "pre": (
                        'echo "sluice-control: gates stay where they are while the program is changed"\n'
                        "exit 0"
                    ),
                    "post": 'echo "sluice-control: reading the positions of all gates"\nexit 0',
                    "preun": (
                        'if [ "$1" -eq 0 ]; then\n'
                        '    echo "sluice-control: gates are left to the hand wheels"\n'
                        "fi\n"
                        "exit 0"
                    ),
                },
            ),
            Part(
                "sluice-control-panel", "tool", 2310, "The panel of a sluice on the screen",
                "Levels, gates and lights of one or several sluices on one screen.",
                requires=("sluice-control", "glyphhouse-text"),
            ),
            Part(
                "sluice-control-simulator", "tool", 1640, "A sluice to practise on",
                "Behaves like a sluice with its tides, ships and faults, for training and for "
                "tests of new timetables.",
                installed=False,
                requires=("sluice-control-panel", "valvebus-simulator"),
            ),
        ),
        updates=(
            Update("5.3.4-1", "Enter a movement in the logbook before it begins"),
            Update("5.4.0-0.2", "First build of the new timetable planner, for trial only", "preview"),
        ),
    ),
    Source(
        "pumpwatch", "7.0.2", 1, MAEL, STATION,
        parts=(
            Part(
                "pumpwatch", "daemon", 1370, "Watches pumps, bearings and motors",
                "Follows temperature, vibration and current of each pump, learns what is usual, "
                "and speaks up early. Grease is cheaper than bearings.",
                requires=("libvalvebus.so.4()(64bit)", "logbook"),
                scriptlets=said("pumpwatch: learning begins anew for pumps that were overhauled"),
            ),
            Part(
                "pumpwatch-sms", "tool", 90, "Sends pump alarms as short messages",
                "Sends the alarms of pumpwatch to the telephones of those on duty.",
                installed=False,
                arch="noarch",
                requires=("pumpwatch", "nightwatch", "causeway-radio"),
            ),
        ),
        updates=(
            Update("7.1.0-1", "Learn the usual vibration separately for each speed"),
        ),
    ),
    Source(
        "pumpwatch-classic", "3.8.11", 9, MAEL, STATION,
        repository="extras",
        parts=(
            Part(
                "pumpwatch-classic", "daemon", 610, "Watches pumps by fixed limits",
                "The old pumpwatch, which compares each value with two limits. For stations whose "
                "sensors are too coarse for learning.",
                installed=False,
                requires=("logbook",),
                conflicts=("pumpwatch",),
            ),
        ),
    ),
    Source(
        "valvebus", "4.2", 1, WENYUAN, STATION,
        license="LGPL-2.1-or-later",
        parts=(
            Part(
                "libvalvebus", "lib", 410, "Speaks to valves, gates and pumps over the field bus",
                "The field bus of the board's stations, with the timing of the old relays.",
                group=LIBRARIES,
                provides=("libvalvebus.so.4()(64bit)",),
            ),
            Part(
                "valvebus-tools", "tool", 150, "Look at the field bus and try single valves",
                "The commands busls, bustalk and busdump.",
                requires=("libvalvebus",),
            ),
            Part(
                "valvebus-simulator", "tool", 280, "A field bus without a field",
                "Plays the part of up to 247 devices on the bus.",
                installed=False,
                requires=("libvalvebus",),
            ),
        ),
    ),
    Source(
        "eelpass", "1.6", 1, TAMSIN, STATION,
        arch="noarch",
        parts=(
            Part(
                "eelpass", "tool", 75, "Lets the eels through",
                "Plans pump pauses and small gate openings around the migration of eels and "
                "sticklebacks, by season, moon and water temperature.",
                requires=("sluice-control", "tidetables"),
            ),
        ),
    ),
    Source(
        "nightwatch", "2.5", 3, RENATE, STATION,
        arch="noarch",
        parts=(
            Part(
                "nightwatch", "tool", 160, "Who is on duty, and who stands in",
                "The duty roster with its swaps, holidays and telephone chain.",
                requires=("postern", "rollcall"),
            ),
        ),
    ),
    Source(
        "dieselhouse", "1.1", 1, MAEL, STATION,
        repository="extras",
        parts=(
            Part(
                "dieselhouse", "daemon", 720, "Starts the emergency generator and keeps it fit",
                "Starts the generator when the mains fail, sheds load in the order of the station "
                "plan, and runs it for half an hour each month.",
                installed=False,
                requires=("libvalvebus.so.4()(64bit)", "bellringer"),
            ),
        ),
    ),
)
