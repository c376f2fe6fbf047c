#pragma once
#include <array>

namespace model {

// Design moments for orthogonal reinforcement along a plate's local x and y axes, by the
// rules of R. H. Wood, "The reinforcement of slabs in accordance with a pre-determined field
// of moments", Concrete 2 (1968) 69-76, with G. S. T. Armer's discussion, Concrete 2 (1968)
// 319-320. A positive moment puts the bottom face (local -z) in tension.
//
// Bottom:  Mux = Mxx + |Mxy|, Muy = Myy + |Mxy|; where Mux < 0: Mux = 0 and
//          Muy = Myy + Mxy²/|Mxx|; where Muy < 0: Muy = 0 and Mux = Mxx + Mxy²/|Myy|;
//          a moment still below zero is 0 (no bottom steel that way).
// Top:     Mux = Mxx - |Mxy|, Muy = Myy - |Mxy|; where Mux > 0: Mux = 0 and
//          Muy = Myy - Mxy²/|Mxx|; where Muy > 0: Muy = 0 and Mux = Mxx - Mxy²/|Myy|;
//          a moment still above zero is 0. Top moments are thus never positive.
struct WoodArmerMoments {
  double botMux = 0, botMuy = 0, topMux = 0, topMuy = 0;
};
WoodArmerMoments WoodArmer(double mxx, double myy, double mxy);

}  // namespace model
