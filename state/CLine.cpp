#include "state/CLine.h"

namespace prismfall {

void CLine::Copy(const CLine& oLine) {
    XStart = oLine.XStart;
    XEnd = oLine.XEnd;
    YStart = oLine.YStart;
    YEnd = oLine.YEnd;
    Direction = oLine.Direction;
    Color = oLine.Color;
    Thicknes = oLine.Thicknes;
    Deleted = oLine.Deleted;
    XStartOrg = oLine.XStartOrg;
    RunMode = oLine.RunMode;
    DoubleSpeed = oLine.DoubleSpeed;
    DeletedByFastLine = oLine.DeletedByFastLine;
}

}  // namespace prismfall
