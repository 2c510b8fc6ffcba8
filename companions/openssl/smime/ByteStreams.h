#pragma once

#include "Streams.h"

using base::Bytes;
using base::ByteSink;
using base::ByteSource;
