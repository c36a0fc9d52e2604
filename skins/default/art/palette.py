"""Colours of the default skin and the few colour helpers the drawing needs."""

SLATE_DEEP = "#11161C"    # shadow lines
SLATE_DARK = "#1E2630"    # bottom of panels
SLATE = "#2A3440"         # top of panels
TEXT = "#E8EEF4"          # captions, drawn by the program
INK = "#DCE4EC"           # icons at rest
GLASS = "#BFD3EA"         # veil of hovered plates, cooler than white
WHITE = "#FFFFFF"
BLACK = "#000000"
ACCENT = "#21C46B"        # selected state, small accents
ACCENT_LIGHT = "#4FE394"  # icons in the selected state
ACCENT_TOP = "#1DA95E"    # primary plate, top (dark enough for white captions)
ACCENT_BOTTOM = "#12884A"  # primary plate, bottom
WARN = "#FF8A7A"          # icons that leave or discard, while hovered
GLYPH = "#6B7885"         # chevrons of the folder tree, which is white
FOLDER_BACK, FOLDER_FRONT = "#DDB25C", "#F3D48C"  # folders of the tree
OPEN_BACK, OPEN_FRONT = "#C77D12", "#FFB938"      # its current folder


def rgba(colour, alpha=1.0):
    """'#RRGGBB' to a cairo colour tuple."""
    return tuple(int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)) + (alpha,)


def mix(a, b, t):
    """Colour at the fraction t of the way from a to b."""
    pairs = zip((a[1:3], a[3:5], a[5:7]), (b[1:3], b[3:5], b[5:7]))
    return "#" + "".join(
        f"{round(int(x, 16) + (int(y, 16) - int(x, 16)) * t):02X}"
        for x, y in pairs)
