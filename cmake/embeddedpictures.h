// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

// The picture archives (.rcc) of a program or library. headunit_pictures() of Pictures.cmake embeds them and generates
// the one object of this class.

/// The kernel brings in files in blocks of 64 KiB: an archive shares none with another.
#define PICTURE_ARCHIVE(symbol, file)   \
    __asm__(                            \
        ".pushsection .rodata\n"        \
        ".balign 65536\n"               \
        ".hidden " #symbol              \
        "\n"                            \
        ".global " #symbol "\n" #symbol \
        ":\n"                           \
        ".incbin \"" file               \
        "\"\n"                          \
        ".popsection\n");               \
    extern "C" __attribute__((visibility("hidden"))) const unsigned char symbol[];

/// Registers the pictures when the code that holds them is loaded, and unregisters them when it is unloaded.
///
/// Hidden: the program and each of its plug-ins have one of their own.
class __attribute__((visibility("hidden"))) EmbeddedPictures {
public:
    /// \a archives end with null. \a denseFile, in the folder of the code that holds them, has the same pictures for
    /// dense displays (name@2x.png), which Qt takes by itself where they are registered and the display is dense.
    EmbeddedPictures(const unsigned char *const *archives, const char *denseFile);
    ~EmbeddedPictures();

    EmbeddedPictures(const EmbeddedPictures &) = delete;
    EmbeddedPictures &operator=(const EmbeddedPictures &) = delete;

private:
    static void addDenseLater();
    void addDense();
    QString densePath() const;

    const unsigned char *const *m_archives;
    const char *m_denseFile;
    QString m_dense;  ///< the file that is registered
};
