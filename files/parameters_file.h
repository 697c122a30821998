#pragma once

#include "files/byte_cursor.h"

namespace parabolt {

/// One set-up of a shot as a parameters file keeps it. The numbers in front are offsets in the file
/// of 66 bytes: little-endian, no gaps, no header. Units are those of the shot.
struct ParameterRecord {
    /*  0 */ float LaunchAngle = 0;
    /*  4 */ float RPM = 0;
    /*  8 */ float LaunchSpeed = 0;
    /* 12 */ float HeadSpeed = 0;
    /* 16 */ std::int16_t ClubNo = 0;
    /* 18 */ float SpeedIncrement = 0;
    /* 22 */ std::int16_t ClubType = 0; ///< 0 wood, 1 iron
    /* 24 */ float COR = 0;
    /* 28 */ float HeadWeight = 0;
    /* 32 */ float AttackAngle = 0;
    /* 36 */ float Bending = 0;
    /* 40 */ float LoftAngle = 0;
    /* 44 */ std::int16_t BallType = 0; ///< 1 to 4
    /* 46 */ float WindSpeed = 0;
    /* 50 */ float Temperature = 0;
    /* 54 */ float BaroPressure = 0;
    /* 58 */ float RH = 0;
    /* 62 */ float h = 0;
};

inline constexpr std::size_t kParametersFileSize = 66;

/// The bytes of a record.
Bytes encodeParameters(const ParameterRecord& record);

/// The record with which the bytes begin. Any bytes are a record: those that lack are zero, and the
/// values are taken as they come.
ParameterRecord decodeParameters(std::span<const std::uint8_t> data);

} // namespace parabolt
