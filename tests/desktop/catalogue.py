"""The texts of the windows, as the translators wrote them."""

import xml.etree.ElementTree as ElementTree


class Catalogue:
    """Texts by the context they stand in and their English wording, which must be in there."""

    def __init__(self, path, italian):
        self.texts = {}
        for context in ElementTree.parse(path).iter("context"):
            for message in context.iter("message"):
                source = message.findtext("source")
                text = message.findtext("translation") if italian else source
                self.texts[context.findtext("name"), source, message.findtext("comment")] = text

    def __call__(self, context, source, comment=None):
        return self.texts[context, source, comment]
