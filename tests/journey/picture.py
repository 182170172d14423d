"""Pictures of the screen, as binary PPM files."""

class Picture:
    def __init__(self, path):
        with open(path, "rb") as file:
            header = file.readline() + file.readline() + file.readline()
            self.data = file.read()
        magic, width, _, depth = header.split()
        if (magic, depth) != (b"P6", b"255"):
            raise ValueError(f"{path} is no PPM file of 8 bits")
        self.width = int(width)

    def pixels(self, area):
        """The colours in an area (x, y, width, height) of the screen's pixels, row by row."""
        x, y, width, height = area
        starts = [(row * self.width + x) * 3 for row in range(y, y + height)]
        lines = [self.data[start:start + width * 3] for start in starts]
        return [pixel for line in lines for pixel in zip(line[::3], line[1::3], line[2::3])]

    def is_like(self, other, area, tolerance=2):
        """The same to the eye: a repaint of a part may round a blend to another level."""
        return all(abs(one - two) <= tolerance
                   for pair in zip(self.pixels(area), other.pixels(area))
                   for one, two in zip(*pair))

    def share(self, area, color, tolerance=24):
        """The share of the area, from 0 to 1, that is as good as of one colour."""
        red, green, blue = color
        hits = sum(abs(r - red) + abs(g - green) + abs(b - blue) <= tolerance
                   for r, g, b in self.pixels(area))
        return hits / (area[2] * area[3])

    def brightness(self, area):
        """The mean of all channels, from 0 to 255."""
        return sum(map(sum, self.pixels(area))) / (3 * area[2] * area[3])
