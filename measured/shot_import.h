#pragma once

#include "measured/devices.h"
#include "measured/measured_shot.h"

namespace parabolt {

/// A row of a file, as the preview shows it.
struct ImportRow {
    std::size_t line = 0;
    MeasuredShot shot;    ///< as far as the row tells it
    std::string reason;   ///< why it is left out: "no spin", "average row"; empty for a shot
    std::string remark;   ///< of a shot that can be taken: what was made of its values
    bool leftOut = false; ///< taken, it is struck through, as the file says
    bool taken = false;   ///< the box; may be set only where there is no reason
    friend bool operator==(const ImportRow&, const ImportRow&) = default;
};

/// What a file would bring. Nothing is taken yet.
struct ImportPreview {
    std::string device;        ///< name of the device
    bool computesCarry = true; ///< its figures are headed "Device", not "Measured"
    std::vector<ImportRow> rows;

    std::size_t count() const; ///< rows whose box is set
    /// The shots whose box is set.
    std::vector<MeasuredShot> taken() const;
};

/// The rows of a file of a known device; those that can be flown have their box set.
ImportPreview previewOf(const ShotFile& file, const Device& device);
/// The rows of a file by the user's choice of columns.
ImportPreview previewOf(const ShotFile& file, const ColumnChoice& choice);

/// The whole way for callers without a window: bytes to preview, by the device that the headings
/// tell. The fault also where no device is known, and where no row can be flown.
Outcome<ImportPreview, ImportFault> importShots(std::string_view bytes);

/// What stands over the figures of a device: "Device" or "Measured".
std::string_view figuresHeading(bool computesCarry);

} // namespace parabolt
