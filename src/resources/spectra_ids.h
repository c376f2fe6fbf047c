#pragma once
// Ids of the response spectrum dialogs, numbered 24500 and up within the loads range.
namespace res {

// Templates
inline constexpr int kIddGenerateResponseSpectrum = 24500;
inline constexpr int kIddResponseSpectra = 24501;
inline constexpr int kIddResponseSpectrumData = 24502;
inline constexpr int kIddResponseSpectrumAnalysis = 24503;

// CGenerateResponseSpectrumDlg (its fields come from its description)
inline constexpr int kCtlSpecEc8Group = 24518;
inline constexpr int kCtlSpecChart = 24530;
inline constexpr int kCtlSpecStatus = 24531;

// CResponseSpectraDlg
inline constexpr int kCtlSpectraList = 24540;
inline constexpr int kCtlSpectraGenerate = 24541;
inline constexpr int kCtlSpectraImport = 24542;
inline constexpr int kCtlSpectraModify = 24543;
inline constexpr int kCtlSpectraDelete = 24544;
inline constexpr int kCtlSpectraExport = 24545;
inline constexpr int kCtlSpectraFile = 24546;

// CResponseSpectrumDataDlg
inline constexpr int kCtlSpecName = 24551;
inline constexpr int kCtlSpecDataChart = 24552;
inline constexpr int kCtlSpecDeleteRows = 24554;

// CResponseSpectrumAnalysisDlg
inline constexpr int kCtlRsaPerform = 24560;
inline constexpr int kCtlRsaSpectrumX = 24567;  // then Y and Z
inline constexpr int kCtlRsaFactorX = 24570;  // then Y and Z
inline constexpr int kCtlRsaCombination = 24574;
inline constexpr int kCtlRsaDamping = 24576;
inline constexpr int kCtlRsaSpectra = 24577;

// Strings
inline constexpr int kStrSpecCa = 24611;
inline constexpr int kStrSpecCv = 24612;
inline constexpr int kStrSpecSds = 24613;
inline constexpr int kStrSpecSd1 = 24614;
inline constexpr int kStrChartPeriod = 24625;
inline constexpr int kStrChartAcceleration = 24626;

}  // namespace res
