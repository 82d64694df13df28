// The session file `.tq2`: records of 150 bytes, one header and then one for each sequence, with no session
// boundaries and no totals. The header's count alone says where the file ends for a reader. docs/files.md has
// every byte. Also the predecessor's records of 84 bytes, which can be converted.
#pragma once

#include <optional>
#include <string>

#include "platform/file_system.h"
#include "platform/grid.h"

namespace model {

struct SessionHeader {
  int nbEnreg = 0;      // number of the last record
  int fois = 0;         // repeat count
  std::string annonce;  // trimmed: "ver2" in a present file
  [[nodiscard]] bool present() const { return annonce == "ver2"; }
};

// All that follow throw platform::FileFault where the file cannot be read or written.

// Throws platform::Fault where the list, with so many sequences more, would be longer than a reader takes.
void requireRoom(const platform::Grid& grille, int more);

// Writes every sequence row of the grid over what stands at `chemin`, the header last; all of it or nothing.
// Throws platform::Fault for a list that would be too long to be read again.
void ecrireSeance(platform::FileSystem& files, const std::string& chemin, const platform::Grid& grille);
// The same into a file that is open.
void writeSession(platform::RandomFile& file, const platform::Grid& grille);
// Bytes of the records that a session's header announces.
[[nodiscard]] std::uint64_t sizeOfSession(const SessionHeader& header);
[[nodiscard]] SessionHeader lireEnTete(platform::FileSystem& files, const std::string& chemin);
// Turns a file of the old records into a present one and removes the old; returns the path of the new one,
// which always ends in ".tq2".
[[nodiscard]] std::string convertirAncien(platform::FileSystem& files, const std::string& chemin);
// Removes what a crash left of saves and conversions in a folder; the files themselves stand as they were.
void supprimerRestes(platform::FileSystem& files, const std::string& dossier);

struct FoundSequences {
  int announced = 0;  // by the header
  int found = 0;      // in the records behind it; the others are blank rows
};

// Appends the file's sequences as rows, once for each pass, with a closing row behind each pass of a repeated
// session. First removes a last row that is not finished. Returns what one pass found.
FoundSequences ajouterSeance(platform::FileSystem& files, const std::string& chemin, platform::Grid& grille);

// The session's name: what stands before the first dot of the path's last part; none where it has no dot.
[[nodiscard]] std::optional<std::string> sessionName(const std::string& chemin);

}  // namespace model
