! Overlay for the six keys above the arrow keys, as the graphics editor uses
! them; about 1 1/8 inches wide in the listing font. Cut it out along the frame.
! Each pair is a count and a character, or the code of one (32 is a blank);
! a count of 0 prints the line as many times as the number behind it says.
1 + 3 - 1 + 3 - 1 + 3 - 1 + 0 1
1 | 1 I 1 N 1 S 1 | 1 H 1 O 1 M 1 | 1 P 1 U 1 P 1 | 0 1
1 | 1 32 1 \ 1 32 1 | 1 32 1 / 1 32 1 | 1 < 2 - 1 | 0 1
1 + 3 - 1 + 3 - 1 + 3 - 1 + 0 1
1 | 1 D 1 E 1 L 1 | 1 E 1 N 1 D 1 | 1 P 1 D 1 N 1 | 0 1
1 | 1 32 1 / 1 32 1 | 1 32 1 \ 1 32 1 | 2 - 1 > 1 | 0 1
1 + 3 - 1 + 3 - 1 + 3 - 1 + 0 1
