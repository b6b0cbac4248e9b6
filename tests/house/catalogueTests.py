"""Whether the pictures that the software catalogue is told of are there, and as large as it is told."""
import re
import struct
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
IMAGE = re.compile(r'<image type="source" width="(\d+)" height="(\d+)">@QUORVEL_ORIGIN@/desktop/([^<]*)</image>')


def size_of(picture):
    """Width and height stand in the first chunk of a PNG file."""
    return struct.unpack(">II", picture.read_bytes()[16:24])


class TestCatalogue(unittest.TestCase):
    def test_every_picture_is_there_and_as_large_as_is_said(self):
        for description in (PROJECT / "data").glob("*.metainfo.xml.in"):
            pictures = IMAGE.findall(description.read_text())
            self.assertTrue(pictures, description)
            for width, height, name in pictures:
                self.assertEqual(size_of(PROJECT / "docs/screenshots" / name), (int(width), int(height)), name)


if __name__ == "__main__":
    unittest.main()
