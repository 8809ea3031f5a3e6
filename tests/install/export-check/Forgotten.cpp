// A library with one class marked for export and one left unmarked: the export check must
// refuse it, or it could not catch a class that the export sweep missed.
#include <ZelmarMediaLib/datatypes/Export.h>

namespace ZelmarMediaLib {

class ZML_EXPORT Marked {
public:
    virtual ~Marked();
    int value() const;
};

class Forgotten {
public:
    virtual ~Forgotten();
    int value() const;
};

Marked::~Marked() = default;
int Marked::value() const { return 1; }
Forgotten::~Forgotten() = default;
int Forgotten::value() const { return 2; }

}  // namespace ZelmarMediaLib
