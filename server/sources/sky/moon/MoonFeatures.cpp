// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonFeatures.h"

namespace moravel::server::sky {

namespace {

// clang-format off
constexpr Mare mariaTable[] = {
    {34, -17, 18.5f, 16.5f, 0, 0.84f, -0.2f, 3.2f},    // Imbrium
    {44.5f, -31.5f, 3.8f, 3.8f, 0, 0.84f, 0, 2.2f},    // Sinus Iridum
    {27.3f, 18.2f, 10.6f, 9.6f, 0, 0.78f, -0.5f, 1.4f}, // Serenitatis
    {9, 31, 12.6f, 9.2f, -8, 0.95f, 1.0f, 0.5f},       // Tranquillitatis
    {18.5f, 26.5f, 4.5f, 4, 0, 0.90f, 0.4f, 0},        // between the two
    {2.5f, 43, 4.5f, 3, 0, 0.80f, 0.5f, 0},
    {4, 25, 7, 5, 20, 0.93f, 1.0f, 0},
    {-5, 27, 3.4f, 4.2f, 0, 0.72f, 0.5f, 0},           // Sinus Asperitatis
    {17, 59.1f, 8.7f, 6.5f, 0, 0.92f, 0.3f, 2.6f},     // Crisium
    {-3, 52.5f, 9.5f, 7.2f, 0, 0.86f, 0.4f, 0.4f},     // Fecunditatis
    {-14, 50.5f, 6.2f, 7.8f, 0, 0.82f, 0.3f, 0.3f},
    {-15.2f, 34.8f, 5.6f, 5.6f, 0, 0.84f, 0.3f, 1.6f}, // Nectaris
    {-24.4f, -38.8f, 6.8f, 6.6f, 0, 0.92f, 0.1f, 1.6f}, // Humorum
    {-20, -16, 10.5f, 8.2f, 10, 0.84f, 0, 0.3f},       // Nubium
    {-25, -11.5f, 4, 5, 0, 0.74f, 0, 0},
    {-10.5f, -23.5f, 6.6f, 6, 0, 0.88f, 0, 0},         // Cognitum
    {-32, -27.5f, 5, 3, 0, 0.74f, 0, 0},               // Palus Epidemiarum
    {5.5f, -30, 10, 6, 0, 0.82f, 0.2f, 0},             // Insularum
    {0, -15, 7, 4, 15, 0.70f, 0.2f, 0},
    {13.3f, 3.8f, 4.3f, 4, 0, 0.85f, 0.2f, 0.6f},      // Vaporum
    {1.5f, 0, 6, 2.4f, 8, 0.80f, 0.2f, 0},             // Sinus Medii
    {11.5f, -8.6f, 4.6f, 4, 0, 0.86f, 0.1f, 0.4f},     // Sinus Aestuum
    {55, -44, 8, 3.2f, 22, 0.70f, -0.2f, 0},           // Frigoris, from west to east
    {57.5f, -26, 8, 3.0f, 10, 0.70f, -0.3f, 0},
    {58.2f, -8, 8, 3.0f, 0, 0.70f, -0.3f, 0},
    {57, 10, 8, 3.1f, -8, 0.68f, -0.3f, 0},
    {54.5f, 26, 8, 3.0f, -16, 0.66f, -0.3f, 0},
    {51, 39, 4, 2.2f, -24, 0.55f, -0.2f, 0},
    {20, -57, 12.5f, 17, 8, 0.88f, 0.3f, 0},           // Oceanus Procellarum
    {40, -58, 10, 10.5f, 20, 0.82f, 0.1f, 0},
    {13, -46, 13, 11, 0, 0.86f, 0.5f, 0},
    {-3, -49, 10, 9, 0, 0.86f, 0.4f, 0},
    {-2, -36, 10, 7, 0, 0.80f, 0.1f, 0},
    {22, -34, 9, 9, 0, 0.82f, 0.4f, 0},
    {-15, -52, 4, 4.5f, 0, 0.72f, 0.1f, 0},
    {52, -56, 8, 4.6f, 35, 0.76f, 0, 0},               // Sinus Roris
    {38, 31.5f, 6.6f, 4, 10, 0.64f, 0, 0},             // Lacus Somniorum
    {45, 27.3f, 2.8f, 2.4f, 0, 0.60f, 0, 0},           // Lacus Mortis
    {1.3f, 87, 5.6f, 5.6f, 0, 0.76f, 0.2f, 0.5f},      // Smythii
    {13, 86, 5, 4, 0, 0.70f, 0.2f, 0},                 // Marginis
    {57, 81, 4, 3.4f, 0, 0.72f, 0, 0.8f},              // Humboldtianum
    {-46, 90, 11, 9, 0, 0.50f, 0, 0},                  // Australe
    {7, 68.5f, 3.2f, 2.0f, 30, 0.64f, 0, 0},           // Undarum
    {1.2f, 65, 2.2f, 1.8f, 0, 0.64f, 0, 0},            // Spumans
    {22.6f, 67.6f, 2.2f, 1.4f, 60, 0.64f, 0, 0},       // Anguis
    {11, 43, 2.6f, 2.2f, 0, 0.72f, 0.4f, 0},           // Sinus Concordiae
    {9, 15.4f, 2.0f, 1.5f, 60, 0.80f, 0.3f, 0},        // Julius Caesar
    {27, 0.5f, 2.6f, 2.2f, 40, 0.76f, 0, 0},           // Palus Putredinis
    {-5.3f, -68.6f, 2.7f, 3.2f, 0, 1.0f, 0, 0},        // Grimaldi
    {-3, -74.3f, 1.4f, 1.3f, 0, 0.8f, 0, 0},           // Riccioli
    {51.6f, -9.4f, 1.55f, 1.55f, 0, 0.98f, 0, 0},      // Plato
    {29.7f, -4, 1.25f, 1.25f, 0, 0.86f, 0, 0},         // Archimedes
    {53.6f, 56.5f, 1.8f, 1.8f, 0, 0.86f, 0, 0},        // Endymion
    {-43, -56, 2.0f, 1.5f, 40, 0.62f, 0, 0},           // Schickard
    {-16.7f, -66.8f, 0.8f, 0.8f, 0, 0.9f, 0, 0},       // Crueger
    {-13.8f, -50.1f, 0.75f, 0.75f, 0, 0.9f, 0, 0},     // Billy
    {-19.4f, -93, 5, 5, 0, 0.70f, 0, 1.5f},            // Orientale
};

constexpr NamedCrater craterTable[] = {
    {-43.3f, -11.4f, 85, 1, 0},           // Tycho
    {9.6f, -20.1f, 93, 1, 0},             // Copernicus
    {8.1f, -38, 32, 1, 0},                // Kepler
    {23.7f, -47.4f, 40, 1, 0},            // Aristarchus
    {24.9f, -49.4f, 35, 0.7f, 1},         // Herodotus
    {16.1f, 46.8f, 28, 1, 0},             // Proclus
    {-8.9f, 61.1f, 132, 0.9f, 0},         // Langrenus
    {-25.3f, 60.4f, 177, 0.75f, 0},       // Petavius
    {-16.4f, 61.8f, 147, 0.3f, 0.3f},     // Vendelinus
    {-36.3f, 60.4f, 125, 0.5f, 0.3f},     // Furnerius
    {-32.5f, 54.2f, 75, 0.9f, 0},         // Stevinus
    {-11.4f, 26.4f, 100, 0.95f, 0},       // Theophilus
    {-13.2f, 24, 98, 0.55f, 0},           // Cyrillus
    {-18, 23.6f, 100, 0.5f, 0},           // Catharina
    {-21.2f, 33, 124, 0.4f, 0.8f},        // Fracastorius
    {-29.7f, 32.2f, 88, 0.85f, 0},        // Piccolomini
    {-9.3f, -1.9f, 153, 0.45f, 0.8f},     // Ptolemaeus
    {-13.4f, -2.8f, 119, 0.6f, 0.3f},     // Alphonsus
    {-18.2f, -1.9f, 96, 0.85f, 0},        // Arzachel
    {-25.5f, -1.9f, 118, 0.4f, 0.5f},     // Purbach
    {-28.4f, -1, 126, 0.35f, 0.4f},       // Regiomontanus
    {-33, 0.7f, 140, 0.45f, 0.3f},        // Walther
    {-32.5f, -5.2f, 235, 0.2f, 0.4f},     // Deslandres
    {-29.9f, -13.5f, 106, 0.5f, 0.9f},    // Pitatus
    {-28, 3.3f, 70, 0.9f, 0},             // Werner
    {-30.6f, 5.2f, 80, 0.6f, 0},          // Aliacensis
    {-41.1f, 6, 126, 0.5f, 0.6f},         // Stoefler
    {-41.8f, 14, 114, 0.65f, 0},          // Maurolycus
    {-58.4f, -14.4f, 225, 0.6f, 0.2f},    // Clavius
    {-50, -6.2f, 163, 0.4f, 0},           // Maginus
    {-49.5f, -21.7f, 145, 0.55f, 0.4f},   // Longomontanus
    {-43.4f, -20.4f, 107, 0.5f, 0.2f},    // Wilhelm
    {-63.8f, -21.4f, 117, 0.65f, 0},      // Blancanus
    {-60.5f, -27.5f, 110, 0.6f, 0},       // Scheiner
    {-70.6f, -5.8f, 114, 0.9f, 0},        // Moretus
    {-66.5f, -69.1f, 287, 0.4f, 0},       // Bailly
    {-44.4f, -54.6f, 212, 0.4f, 0.8f},    // Schickard
    {-45.4f, 40.3f, 190, 0.3f, 0},        // Janssen
    {-42.9f, 42, 78, 0.8f, 0},            // Fabricius
    {-11.2f, 4.1f, 136, 0.45f, 0.3f},     // Albategnius
    {-5.5f, 4.8f, 150, 0.25f, 0.4f},      // Hipparchus
    {-20.7f, -22.2f, 61, 0.95f, 0},       // Bullialdus
    {-17.5f, -39.9f, 110, 0.6f, 0.5f},    // Gassendi
    {3.3f, -22.8f, 42, 0.9f, 0},          // Reinhold
    {-0.3f, -26.6f, 39, 0.9f, 0},         // Lansberg
    {14.5f, -11.3f, 58, 0.95f, 0},        // Eratosthenes
    {26.7f, -13.1f, 33, 0.9f, 0},         // Timocharis
    {29.7f, -4, 82, 0.7f, 1},             // Archimedes
    {33.9f, 1.2f, 55, 0.95f, 0},          // Aristillus
    {30.7f, 1.5f, 39, 0.9f, 0},           // Autolycus
    {40.2f, 4.6f, 57, 0.5f, 1},           // Cassini
    {51.6f, -9.4f, 101, 0.7f, 1},         // Plato
    {50.2f, 17.4f, 87, 0.9f, 0},          // Aristoteles
    {44.3f, 16.3f, 67, 0.9f, 0},          // Eudoxus
    {31.8f, 29.9f, 95, 0.5f, 0.6f},       // Posidonius
    {46.7f, 39.1f, 69, 0.8f, 0.7f},       // Hercules
    {46.7f, 44.4f, 87, 0.75f, 0.2f},      // Atlas
    {53.6f, 56.5f, 125, 0.5f, 0.9f},      // Endymion
    {27.7f, 55.5f, 126, 0.55f, 0.4f},     // Cleomedes
    {21.3f, 46, 64, 0.85f, 0},            // Macrobius
    {35.7f, 79, 177, 0.35f, 0.3f},        // Gauss
    {39.2f, 60.5f, 125, 0.35f, 0.4f},     // Messala
    {-5.3f, -68.6f, 172, 0.35f, 1},       // Grimaldi
    {2.2f, -67.6f, 115, 0.55f, 0.5f},     // Hevelius
    {-3, -74.3f, 139, 0.35f, 0.5f},       // Riccioli
    {62, -42, 165, 0.25f, 0.3f},          // J. Herschel
    {63.5f, -63, 142, 0.85f, 0},          // Pythagoras
    {73.4f, -10.1f, 50, 0.9f, 0},         // Anaxagoras
    {16.3f, 16, 27, 1, 0},                // Menelaus
    {14.5f, 9.1f, 39, 0.85f, 0},          // Manilius
    {15.4f, 24.7f, 43, 0.85f, 0},         // Plinius
    {-21.9f, 57, 33, 0.9f, 0},            // near Petavius
    {-24.7f, -63.9f, 84, 0.5f, 0.2f},     // Byrgius
};

constexpr RayCrater rayTable[] = {
    {-43.3f, -11.4f, 43, 52, 1.0f},     // Tycho
    {9.6f, -20.1f, 46, 17, 0.85f},      // Copernicus
    {8.1f, -38, 16, 11, 0.85f},         // Kepler
    {23.7f, -47.4f, 20, 10, 1.1f},      // Aristarchus
    {16.1f, 46.8f, 14, 12, 0.75f},      // Proclus
    {-8.9f, 61.1f, 60, 12, 0.35f},      // Langrenus
    {-33.5f, 59, 10, 22, 0.75f},        // Furnerius A
    {-20.0f, 57.1f, 14, 11, 0.55f},     // Petavius B
    {73.4f, -10.1f, 25, 24, 0.6f},      // Anaxagoras
    {-24.5f, -63.7f, 10, 15, 0.75f},    // Byrgius A
    {61.8f, 50.3f, 16, 18, 0.6f},       // Thales
    {16.3f, 16, 13, 7, 0.6f},           // Menelaus
    {2.8f, 17.3f, 9, 5, 0.6f},          // Dionysius
    {8, -78, 16, 15, 0.6f},             // Olbers A
    {33.9f, 1.2f, 27, 9, 0.4f},         // Aristillus
    {-14.5f, -49.0f, 6, 6, 0.4f},       // near Billy
    {-1.9f, 47.6f, 6, 6, 0.5f},         // Messier
    {-28, 3.3f, 30, 5, 0.2f},           // Werner
};
// clang-format on

} // namespace

std::span<const Mare> maria()
{
    return mariaTable;
}

std::span<const NamedCrater> namedCraters()
{
    return craterTable;
}

std::span<const RayCrater> rayCraters()
{
    return rayTable;
}

} // namespace moravel::server::sky
