#pragma once

class ByteReader;
class Fault;

/// Reads the header of an S/MIME message (RFC 8551, section 3.2) and the empty line after it. False, and
/// reported: it is none, or what follows is no base64 text.
[[nodiscard]] bool readMimeHeader(ByteReader &text, Fault &fault);
