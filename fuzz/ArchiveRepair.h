#pragma once

#include "Bytes.h"

/// Makes the signature, the checksum of each header and the check byte of each packed block right, as far as
/// they can be found: changed at random, an archive would hardly ever get past them.
void repairArchive(archiver::ByteBuffer &bytes);
