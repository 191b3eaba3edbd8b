// Commands that look at documents without a display: --inspect and --resave.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace commands {

/// `arguments`: all after the program's name; the first is "--inspect" or "--resave". Prints the
/// result on `out`, failures on `err`. Exit status: 0 accepted, 1 refused or the
/// output could not be written, 2 wrong usage.
int RunDocumentCommand(const std::vector<std::string>& arguments, std::ostream& out,
                       std::ostream& err);

/// Reads the file as the program would and prints one JSON object: whether it was accepted, its
/// kind and tag, the settings and lists that came of it, and the messages a user would have seen.
/// Writes nothing to disk. 0 accepted, 1 refused.
int Inspect(const std::string& path, std::ostream& out);

/// Reads the show document `in` and writes it to `target` in today's form; names without folders
/// for a distribution. 0, or 1 with the message on `err`.
int Resave(const std::string& in, const std::string& target, bool distribution, std::ostream& err);

}  // namespace commands
