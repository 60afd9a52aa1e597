#pragma once

#include <QString>
#include <string>

#include "core/Message.h"
#include "forms/DesktopPort.h"
#include "forms/PagePicture.h"
#include "records/RecordPage.h"

namespace kordavan {

/// A page as it goes into a file.
struct PdfPage {
    RecordPage Page;
    PagePicture Picture;
    QString Family;  // of the font
};

/// Writes a record's page as a PDF file of one sheet, its fonts embedded and its text searchable. The old
/// file is whole until the new one is on disk.
/// @return the fault in the words of the operating system; empty when the file is saved
std::string SavePdf(const std::string& path, const PdfPage& page);

/// Asks for a file and saves the page there. Refused when none is chosen, or when it could not be saved,
/// which is told.
Outcome AskToSavePdf(const PdfPage& page, DesktopPort& desktop, UserPort& user);

}  // namespace kordavan
