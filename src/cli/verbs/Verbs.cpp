#include <array>

#include "cli/verbs/Verb.h"

namespace kvr5::cli {
namespace {

constexpr std::array kVerbs{
    Verb{"mp3", "FILE... | -",
         "Analyses MP3 files in the given order, in one process; \"-\" reads a path a line from\n"
         "standard input. Tells the figures and whether the player takes the file.",
         false, RunMp3},
    Verb{"new", "NAME --mode 1|2|5|6|7",
         "Makes a project of model KVR5: mode 1 inputs, 2 scheduled, 5 to 7 playlists.", true,
         RunNew},
    Verb{"projects", "", "Lists the projects in the projects folder.", true, RunProjects},
    Verb{"show", "PROJECT",
         "Shows the descriptor, the parameters with their words, the lists, and what is missing.",
         true, RunShow},
    Verb{
        "config", "PROJECT get [KEY...] | PROJECT set KEY=VALUE...",
        "Reads or changes parameters of Config.txt within the limits of the screens. If one value\n"
        "is refused nothing is written.",
        true, RunConfig},
    Verb{"inputs", "PROJECT list | PROJECT set CODE FILE | PROJECT clear CODE",
         "Lists, assigns and frees combinations of logic inputs. CODE is 1 to 255 or such as "
         "IN1+IN3.",
         true, RunInputs},
    Verb{"save", "PROJECT [--copy-inputs]",
         "Writes descriptor, Config.txt and report of a project, as the program's Save does right\n"
         "after opening it. With --copy-inputs the MP3 files of the inputs are copied into it too.",
         true, RunSave},
    Verb{
        "playlists", "PROJECT",
        "An editing session of the playlists: commands on standard input, one a line; it ends "
        "with\n"
        "save or cancel. select N, inputs BITS, list, add FILE..., addall FOLDER, remove POS,\n"
        "clear, up POS, down POS, shuffle [SEED], import LIST, new NAME [SECOND], delete, report,\n"
        "yes, no.",
        true, RunPlaylists},
    Verb{
        "schedule", "PROJECT",
        "An editing session of the schedule: commands on standard input, one a line; it ends with\n"
        "save or cancel. day N, list, segment add, segment select ID, segment copy, segment\n"
        "remove, time HH MM, spot add SLOT FILE, spot remove SLOT, spot up SLOT, spot down SLOT,\n"
        "report, yes, no.",
        true, RunSchedule},
    Verb{"report", "PROJECT", "Writes the project report and prints its path.", true, RunReport},
    Verb{
        "cards", "",
        "Lists the drives that can be a card: letter, label, file system, size, free space, where\n"
        "it is mounted, and whether it is locked.",
        true, RunCards},
    Verb{"record", "PROJECT CARD...",
         "Records a project onto one card after another. CARD is a drive letter or a folder.", true,
         RunRecord},
    Verb{
        "readback", "CARD [--name NAME]",
        "Brings the project of a card into a new folder of the projects folder and opens it, so\n"
        "that its files get their own names back. NAME counts where a project has the card's name.",
        true, RunReadback},
    Verb{
        "erase", "CARD",
        "Deletes the files in a card's root; folders, hidden and read-only files stay. Asks twice.",
        true, RunErase},
    Verb{
        "verify", "PROJECT CARD",
        "Compares a card with what a recording of the project would put there, byte for byte, and\n"
        "changes nothing. Findings: missing, different, stray, entry (a list names a file that is\n"
        "not there), refused (the player would not take it), unchecked (it could not be read).",
        true, RunVerify},
    Verb{"takeover", "PROJECT [--dry-run]",
         "Takes over the databases of a project of earlier years, which the Jet engine made; the\n"
         "originals go into its folder Originals. --dry-run only tells what would be done.",
         true, RunTakeover},
    Verb{"relocate", "PROJECT FOLDER",
         "Looks in a folder and all below it, by name, for the files of a project that are "
         "missing,\n"
         "and has the project play them from there. 0 when all were found.",
         true, RunRelocate},
};

}  // namespace

std::span<const Verb> Verbs() {
  return kVerbs;
}

}  // namespace kvr5::cli
