// The files of the system as a person without rights sees them: root may read all.
#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

namespace varo::prueba {

/// While it stands, this thread owns no file.
class ComoOtraPersona {
public:
    ComoOtraPersona() {
        constexpr uid_t nadie = 65534;
        setfsuid(nadie);
    }
    ~ComoOtraPersona() { setfsuid(geteuid()); }
    ComoOtraPersona(const ComoOtraPersona&) = delete;
    ComoOtraPersona& operator=(const ComoOtraPersona&) = delete;
};

} // namespace varo::prueba
