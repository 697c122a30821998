#pragma once

namespace parabolt {

/// What is known of one club. The order of the fields is also their order in clubs files.
struct ClubRecord {
    float LoftAngle = 0;   ///< degrees
    float HeadWeight = 0;  ///< grams
    float HeadSpeed = 0;   ///< mph at impact
    float COR = 0;         ///< coefficient of restitution between head and ball
    float AttackAngle = 0; ///< degrees, positive upward
    float Bending = 0;     ///< shaft bend at impact, degrees; adds to the loft
    friend bool operator==(const ClubRecord&, const ClubRecord&) = default;
};

} // namespace parabolt
