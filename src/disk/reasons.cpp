#include "disk/reasons.h"

#include <array>
#include <cerrno>
#include <utility>

#include "platform/fault.h"

namespace disk {

std::string reasonOf(int error) {
  static constexpr std::array<std::pair<int, const char*>, 25> reasons{{
      {ENOENT, "fichier introuvable"},
      {EACCES, "accès refusé"},
      {EPERM, "accès refusé"},
      {ENOSPC, "espace disque insuffisant"},
      {EDQUOT, "espace disque insuffisant"},
      {EROFS, "disque en lecture seule"},
      {EISDIR, "c'est un dossier"},
      {ENOTDIR, "une partie du chemin n'est pas un dossier"},
      {EEXIST, "un fichier de ce nom existe déjà"},
      {ENOTEMPTY, "le dossier n'est pas vide"},
      {ENAMETOOLONG, "nom trop long"},
      {ELOOP, "ses liens tournent en rond"},
      {EFBIG, "fichier trop grand"},
      {EMFILE, "trop de fichiers ouverts"},
      {ENFILE, "trop de fichiers ouverts"},
      {ENOMEM, "mémoire insuffisante"},
      {EBUSY, "fichier occupé"},
      {ETXTBSY, "fichier occupé"},
      {EXDEV, "les deux chemins ne sont pas sur le même disque"},
      {ENXIO, "le disque n'est plus là"},
      {ENODEV, "le disque n'est plus là"},
      {ENOTCONN, "le disque n'est plus là"},
      {ESTALE, "le disque n'est plus là"},
      {EINTR, "le système interrompt chaque essai"},
      {EIO, "erreur du disque"},
  }};
  for (const auto& [code, words] : reasons) {
    if (error == code) return words;
  }
  return "le système le refuse";
}

void fail(const std::string& action, const std::string& path, int error) {
  throw platform::FileFault(action, path, reasonOf(error));
}

void fail(const std::string& action, const std::string& path) {
  fail(action, path, errno);
}

}  // namespace disk
