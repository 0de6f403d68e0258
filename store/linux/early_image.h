#pragma once

#include "store/linux/kept_files.h"

// The early image (initramfs) has to hold what the kernel loads before the system's own disk is there: a graphics
// driver that starts early looks for its firmware files in it alone.
namespace VNT::Linux {

enum class ImageMaker { None, InitramfsTools, Dracut, Mkinitcpio };

// The one program that makes this system's images; None too where there are two and nothing tells which one does.
ImageMaker FindImageMaker(const Host& host);
// The call that makes all images anew.
Command MakeImages(ImageMaker maker);

// Has the images hold these files (paths below the root), and no other that we put there. False if its settings can't
// be changed; the program is run by the caller.
bool PlanImage(ImageMaker maker, const Host& host, const KeptFiles& kept, const std::vector<std::string>& files,
               Changes& changes);

}  // namespace VNT::Linux
