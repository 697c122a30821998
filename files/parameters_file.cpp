#include "files/parameters_file.h"

namespace parabolt {

namespace {

/// Hands each field to `use`, in the order of the file.
template <class Record, class Use>
void eachField(Record& record, Use use) {
    use(record.LaunchAngle);
    use(record.RPM);
    use(record.LaunchSpeed);
    use(record.HeadSpeed);
    use(record.ClubNo);
    use(record.SpeedIncrement);
    use(record.ClubType);
    use(record.COR);
    use(record.HeadWeight);
    use(record.AttackAngle);
    use(record.Bending);
    use(record.LoftAngle);
    use(record.BallType);
    use(record.WindSpeed);
    use(record.Temperature);
    use(record.BaroPressure);
    use(record.RH);
    use(record.h);
}

struct Writer {
    ByteWriter& to;
    void operator()(float value) const { to.f32(value); }
    void operator()(std::int16_t value) const { to.i16(value); }
};

struct Reader {
    ByteReader& from;
    void operator()(float& value) const { value = from.f32(); }
    void operator()(std::int16_t& value) const { value = from.i16(); }
};

} // namespace

Bytes encodeParameters(const ParameterRecord& record) {
    ByteWriter writer;
    eachField(record, Writer{writer});
    return writer.data();
}

ParameterRecord decodeParameters(std::span<const std::uint8_t> data) {
    ParameterRecord record;
    ByteReader reader(data);
    eachField(record, Reader{reader});
    return record;
}

} // namespace parabolt
