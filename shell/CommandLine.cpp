// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/CommandLine.h"

#include "base/Application.h"
#include "shell/MainWindow.h"
#include "shell/PackageWords.h"

#include <QFile>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <getopt.h>

namespace
{

// Beyond any character, so that no short option can have them.
constexpr int disableRepoOption = 256;
constexpr int enableRepoOption = 257;

void printUsage(std::FILE* stream)
{
    std::fprintf(
        stream,
        "usage: %s [options...]\n"
        "\n"
        "VEM, Verified Estate Manager, is a graphical user interface which allows a user\n"
        "to make modifications to the installed rpm packages on a system.\n"
        "\n"
        "options:\n"
        "\n"
        "   -h, -H, --help           display this help information\n"
        "   -r,     --repo-editor    start by bringing up the repository configuration\n"
        "                            editor\n"
        "   -l,     --log            start with the log window displayed\n"
        "           --disablerepo=r  disable the specified repository, r\n"
        "           --enablerepo=r   enable the specified repository, r\n"
        "\n"
        "arguments:\n"
        "\n"
        "   file.rpm, https://...    show the packages of these files and addresses,\n"
        "                            marked for installation\n"
        "\n",
        program);
}

[[noreturn]] void endWithUsage()
{
    printUsage(stdout);
    std::exit(1);
}

} // namespace

void readCommandLine(int argc, char** argv, MainWindow& window)
{
    static std::array<option, 6> const options{{
        {"help", no_argument, nullptr, 'h'},
        {"repo-editor", no_argument, nullptr, 'r'},
        {"log", no_argument, nullptr, 'l'},
        {"disablerepo", required_argument, nullptr, disableRepoOption},
        {"enablerepo", required_argument, nullptr, enableRepoOption},
        {nullptr, 0, nullptr, 0},
    }};
    opterr = 0;
    for (;;) {
        int const chosen = getopt_long(argc, argv, "+hHrl", options.data(), nullptr);
        switch (chosen) {
        case -1:
            for (; optind < argc; ++optind) {
                QString const word = PackageWords::understood(QFile::decodeName(argv[optind]));
                if (word.isEmpty()) {
                    std::fprintf(stderr, "%s: unrecognized argument: %s\n", program, argv[optind]);
                    endWithUsage();
                }
                window.packageFiles.append(word);
            }
            return;
        case 'h':
        case 'H':
            endWithUsage();
        case 'r':
            window.repoEditorFlag = true;
            break;
        case 'l':
            window.logFlag = true;
            break;
        case disableRepoOption:
        case enableRepoOption:
            // Repository ids are texts of one byte a character, as the configuration is read.
            window.yumRepoEnabledList.append(
                YumRepoEnabled(chosen == enableRepoOption, QString::fromLatin1(optarg)));
            break;
        default:
            if (optopt != 0) {
                std::fprintf(stderr, "%s: unrecognized option letter: %c\n", program, optopt);
            } else {
                std::fprintf(stderr, "%s: unrecogized option: %s\n", program, argv[optind - 1]);
            }
            endWithUsage();
        }
    }
}
