#pragma once

#include "support/TestDatabase.h"

namespace test
{

/// Fills the database with a faculty so small that all its plan shows can be worked out by hand.
///
/// Periods: 1 "Printemps", 3 February to 6 June 2025, with exam weeks of its own (9 June, 16 June,
/// control week 24 March 2025); 2 "Automne", 16 September 2024 to 31 January 2025, without.
///
/// Slots: Lundi1 8h30 to 10h00, Lundi2 10h15 to 11h45, Lundi3 14h00 to 14h45, Lundi4 15h45 to
/// 17h15.
///
/// | room | zone | department | places |
/// |------|------|------------|--------|
/// | A1   | 1    | INFO       | 30     |
/// | A2   | 1    | MATH       | 40     |
/// | B1   | 2    | INFO       | 100    |
/// | B2   | 2    | none       | 20     |
/// | C1   | 3    | none       | 12     |
///
/// Classes: G1, 3 students, capacity 25; G2, no student, capacity 45; G3, 2 students, capacity 10.
///
/// On Monday A2 holds G1 in slot 1 (Dupont and Durand, Algèbre); B2 G2 in slot 2 (Petit, Physique);
/// B1 G2 and G3 together in slot 3 for 180 minutes (Martin, Analyse); C1 G3 in slot 1, in week A
/// with Roux (Chimie), in week B with Blanc (Optique). On Tuesday A2 holds G3 in slot 2 (Roux,
/// Chimie). On Monday, 17 March 2025 A2 holds a make-up of G1 in slot 2 (Dupont, Algèbre), and G1
/// was absent at 8h30. In exam week 1 A2 holds G1 in slot 1 of Monday for 120 minutes (Algèbre, by
/// Dupont, watched by Petit and Roux). All of it in period 1.
void createTinyFaculty(TestDatabase& database);

} // namespace test
