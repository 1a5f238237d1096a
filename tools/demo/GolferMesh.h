#pragma once

#include "Mesh.h"
#include "Skeleton.h"
#include "SwingStyle.h"

namespace kinalyx::demo {

/// Puts body, clothes, cap and shoes round a skeleton.
void AddGolfer(Mesh& mesh, const Pose& pose, const GolferLook& look);

/// The club in the golfer's hands.
void AddClub(Mesh& mesh, const Pose& pose, ClubKind kind);

/// The ball, drawn out along its way while the shutter is open.
void AddBall(Mesh& mesh, Vec3 from, Vec3 to);

/// The peg on which a driver's ball stands.
void AddTee(Mesh& mesh, Vec3 ball);

}  // namespace kinalyx::demo
