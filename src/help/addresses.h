// Where the web entries of the menu lead to.
#pragma once

namespace help::address {

inline constexpr const char* author = "https://auteur.ventoria.example/";
inline constexpr const char* product = "https://www.ventoria.example/";
inline constexpr const char* partner = "https://partenaire.ventoria.example/";

}  // namespace help::address
