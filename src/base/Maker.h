#pragma once

/// The maker's names and addresses, all in one place.
namespace Maker {
inline constexpr char Company[] = "Calvessa";
inline constexpr char PostalAddress[] = "Via dell'Esempio 1, 00100 Roma, Italia";
inline constexpr char Telephone[] = "+39 06 0000 0000";
inline constexpr char Fax[] = "+39 06 0000 0001";
inline constexpr char Email[] = "info@calvessa.example";
inline constexpr char WebSiteHost[] = "www.calvessa.example";
inline constexpr char HomePage[] = "https://www.calvessa.example/";
inline constexpr char ProductPage[] = "https://www.calvessa.example/sorvanta";
} // namespace Maker
