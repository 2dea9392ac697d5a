// G.711 A-law / u-law codec: table-driven conversions between 16-bit linear PCM (host byte
// order) and 8-bit codes.
#ifndef CORE_JNI_ALAW_ENCODER_H
#define CORE_JNI_ALAW_ENCODER_H

// The library is built with hidden visibility; the codec's tables and functions stay exported.
#define G711_API __attribute__((visibility("default")))

// Magnitude m -> u-law code of +m, indexed by (m - 4) >> 3 for m >= 4.
extern G711_API const unsigned char _l2u[4096];
// Magnitude m -> A-law code of +m, indexed by m >> 4.
extern G711_API const unsigned char l2A[2048];
// u-law resp. A-law code -> linear sample.
extern G711_API const short _u2l[256];
extern G711_API const short _A2l[256];
// Code conversions between the two laws, sign included.
extern G711_API const unsigned char _u2A[256];
extern G711_API const unsigned char _A2u[256];

G711_API unsigned char linear2ulaw(short l);
G711_API unsigned char linear2alaw(short l);
G711_API short ulaw2linear(unsigned char u);
G711_API short alaw2linear(unsigned char a);
G711_API unsigned char ulaw2alaw(unsigned char u);
G711_API unsigned char alaw2ulaw(unsigned char a);

// Encoders: read srclen / 2 samples from src, write as many codes to dest, store srclen / 2 in
// *dstlen. The decoder writes srclen samples and stores srclen * 2. All return 1.
G711_API int g711a_Encode(char* src, char* dest, int srclen, int* dstlen);
G711_API int g711u_Encode(char* src, char* dest, int srclen, int* dstlen);
G711_API int g711u_Decode(unsigned char* src, char* dest, int srclen, int* dstlen);

#endif  // CORE_JNI_ALAW_ENCODER_H
