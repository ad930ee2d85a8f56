// What screen readers are told of the program's windows and pictures.
#pragma once

// Windows are windows, frames are groups, pictures with an accessible name are buttons that can be
// pressed, other pictures are images. Before the first of them is made; again is harmless.
void HacerAccesibles();
