NAME          FFFFF800
ROWS
 G  LVPFA
 G  LVP2A
 G  LVP3A
 G  LVPSA
 G  F.PFN
 G  F.P2N
 G  F.P3N
 G  F.PSN
 G  O.PFN
 G  O.P2N
 G  O.P3N
 G  O.PSN
 G  S.PFN
 G  S.P2N
 G  S.P3N
 G  S.PSN
 G  E.PFN
 G  E.P2N
 G  E.P3N
 G  E.PSN
 G  H.PFN
 G  H.P2N
 G  H.P3N
 G  H.PSN
 G  B.PFN
 G  B.P2N
 G  B.P3N
 G  B.PSN
 E  ..P.NE
 G  .FPFN
 G  .FP2N
 G  .FP3N
 G  .FPSN
 G  .OPFN
 G  .OP2N
 G  .OP3N
 G  .OPSN
 G  .SPFN
 G  .SP2N
 G  .SP3N
 G  .SPSN
 G  .PPFN
 G  .PP2N
 G  .PP3N
 G  .PPSN
 G  .EPFN
 G  .EP2N
 G  .EP3N
 G  .EPSN
 G  .HPFN
 G  .HP2N
 G  .HP3N
 G  .HPSN
 G  .BPFN
 G  .BP2N
 G  .BP3N
 G  .BPSN
 E  ..P.NI
 G  EPAFO1
 G  EPA2O1
 G  EPA3O1
 G  EPASO1
 G  ESAFO1
 G  ESA2O1
 G  ESA3O1
 G  ESASO1
 L  RPPST
 L  FAPFT
 L  FAP2T
 L  FAP3T
 E  FAPST
 L  OAPFT
 L  OAP2T
 L  OAP3T
 E  OAPST
 L  SAPFT
 L  SAP2T
 L  SAP3T
 E  SAPST
 L  PAPFT
 L  PAP2T
 L  PAP3T
 E  PAPST
 L  EPPFT
 L  EPP2T
 L  EPP3T
 E  EPPST
 L  ESPFT
 L  ESP2T
 L  ESP3T
 E  ESPST
 L  H7PFT
 L  HMPFT
 L  HMP2T
 L  HMP3T
 L  HMPST
 L  HLPFT
 L  HLP2T
 L  HLP3T
 E  HLPST
 L  HSPFT
 L  HSP2T
 L  HSP3T
 E  HSPST
 L  BAPFT
 L  BAP2T
 L  BAP3T
 E  BAPST
 L  FAPSR
 L  FAPSN
 L  OAPSR
 L  OAPSN
 L  SAPSR
 L  SAPSN
 L  PAPSR
 L  PAPSN
 L  EPPSR
 L  EPPSN
 L  ESPSR
 L  ESPSN
 E  YP.DWLG.
 E  YP.FHR
 E  YP.2HR
 E  YP.3HR
 E  YP.SHR
 E  YP.FLR
 E  YP.2LR
 E  YP.3LR
 E  YP.SLR
 E  YP.FHV
 E  YP.2HV
 E  YP.3HV
 E  YP.SHV
 E  YP.FLV
 E  YP.2LV
 E  YP.3LV
 E  YP.SLV
 L  YP.DWLF1
 L  YP.DWL21
 L  YP.DWL31
 L  YP.DWLS1
 E  YP.DWLF2
 E  YP.DWL22
 E  YP.DWL32
 E  YP.DWLS2
 E  YP.DWLF3
 E  YP.DWL23
 E  YP.DWL33
 E  YP.DWLS3
 E  YP.DWLF4
 E  YP.DWL24
 E  YP.DWL34
 E  YP.DWLS4
 E  YP.DWLF5
 E  YP.DWL25
 E  YP.DWL35
 E  YP.DWLS5
 E  YP.DWLF6
 E  YP.DWL26
 E  YP.DWL36
 E  YP.DWLS6
 E  YP.DWLF7
 E  YP.DWL27
 E  YP.DWL37
 E  YP.DWLS7
 E  YP.DWLF8
 E  YP.DWL28
 E  YP.DWL38
 E  YP.DWLS8
 E  YP.ACRE
 L  YP.DPA.
 L  HVPSN
 L  HWPSN
 E  H7PSR
 E  H7PSN
 E  HMPSR
 E  HMPSN1
 E  HMPSN2
 E  HMPSN3
 E  HMPSN4
 L  HLPSR
 L  HLPSN1
 L  HLPSN2
 E  HLPSN3
 L  HLPSN4
 L  HSPSR
 L  HSPSN1
 L  HSPSN2
 E  HSPSN3
 L  HSPSN4
 L  BAPSR
 L  BAPSN
 E  EPPFD
 E  EPP2D
 E  EPP3D
 E  EPPSD
 E  ESPFD
 E  ESP2D
 E  ESP3D
 E  ESPSD
 E  DHPFP
 E  DHP2P
 E  DHP3P
 E  DHPSP
 E  DPPFD
 E  DPP2D
 E  DPP3D
 E  DPPSD
 L  EPPFP
 L  EPP2P
 L  EPP3P
 L  EPPSP
 L  ESPFP
 L  ESP2P
 L  ESP3P
 L  ESPSP
 L  BOPFP
 L  BOP2P
 L  BOP3P
 L  BOPSP
 E  BTP.P
 G  BAAFO1
 G  BAA2O1
 G  BAA3O1
 G  BAASO1
 E  LVPLUMP
 L  LVPSN
 L  LVPSN2
 G  SAAFO1
 G  SAA2O1
 G  SAA3O1
 G  SAASO1
 L  SAPFP
 L  SAP2P
 L  SAP3P
 L  SAPSP
 G  FAAFO1
 G  FAA2O1
 G  FAA3O1
 G  FAASO1
 G  OAAFO1
 G  OAA2O1
 G  OAA3O1
 G  OAASO1
 L  FAPFP
 L  FAP2P
 L  FAP3P
 L  FAPSP
 L  OAPFP
 L  OAP2P
 L  OAP3P
 L  OAPSP
 L  PAPFP
 L  PAP2P
 L  PAP3P
 L  PAPSP
 E  CBPFRN
 E  CBP2RN
 E  CBP3RN
 E  CBPSRN
 E  CBPFFN
 E  CBP2FN
 E  CBP3FN
 E  CBPSFN
 E  CBPFON
 E  CBP2ON
 E  CBP3ON
 E  CBPSON
 E  CBPFSN
 E  CBP2SN
 E  CBP3SN
 E  CBPSSN
 E  CBPFPN
 E  CBP2PN
 E  CBP3PN
 E  CBPSPN
 E  CBPFEN
 E  CBP2EN
 E  CBP3EN
 E  CBPSEN
 E  CBPFHN
 E  CBP2HN
 E  CBP3HN
 E  CBPSHN
 E  CBPFBN
 E  CBP2BN
 E  CBP3BN
 E  CBPSBN
 E  CSPFFN
 E  CSP2FN
 E  CSP3FN
 E  CSPSFN
 E  CSPFON
 E  CSP2ON
 E  CSP3ON
 E  CSPSON
 E  CSPFSN
 E  CSP2SN
 E  CSP3SN
 E  CSPSSN
 E  CSPFPN
 E  CSP2PN
 E  CSP3PN
 E  CSPSPN
 E  CSPFEN
 E  CSP2EN
 E  CSP3EN
 E  CSPSEN
 E  CSPFHN
 E  CSP2HN
 E  CSP3HN
 E  CSPSHN
 E  CSPFBN
 E  CSP2BN
 E  CSP3BN
 E  CSPSBN
 E  CDPFFO
 E  CDP2FO
 E  CDP3FO
 E  CDPSFO
 E  CDPFOO
 E  CDP2OO
 E  CDP3OO
 E  CDPSOO
 E  CDPFSO
 E  CDP2SO
 E  CDP3SO
 E  CDPSSO
 E  CDPFPO
 E  CDP2PO
 E  CDP3PO
 E  CDPSPO
 E  CDPFEO
 E  CDP2EO
 E  CDP3EO
 E  CDPSEO
 E  CDPFHO
 E  CDP2HO
 E  CDP3HO
 E  CDPSHO
 E  CDPFBO
 E  CDP2BO
 E  CDP3BO
 E  CDPSBO
 E  CIPFEO
 E  CIP2EO
 E  CIP3EO
 E  CIPSEO
 E  CIPFHO
 E  CIP2HO
 E  CIP3HO
 E  CIPSHO
 E  CCPFHO
 E  CCP2HO
 E  CCP3HO
 E  CCPSHO
 E  CRPFRN
 E  CRP2RN
 E  CRP3RN
 E  CRPSRN
 E  CRPFFN
 E  CRP2FN
 E  CRP3FN
 E  CRPSFN
 E  CRPFFO
 E  CRP2FO
 E  CRP3FO
 E  CRPSFO
 E  CRPFON
 E  CRP2ON
 E  CRP3ON
 E  CRPSON
 E  CRPFOO
 E  CRP2OO
 E  CRP3OO
 E  CRPSOO
 E  CRPFSN
 E  CRP2SN
 E  CRP3SN
 E  CRPSSN
 E  CRPFSO
 E  CRP2SO
 E  CRP3SO
 E  CRPSSO
 E  CRPFPN
 E  CRP2PN
 E  CRP3PN
 E  CRPSPN
 E  CRPFPO
 E  CRP2PO
 E  CRP3PO
 E  CRPSPO
 E  CRPFEN
 E  CRP2EN
 E  CRP3EN
 E  CRPSEN
 E  CRPFEO
 E  CRP2EO
 E  CRP3EO
 E  CRPSEO
 E  CRPFHN
 E  CRP2HN
 E  CRP3HN
 E  CRPSHN
 E  CRPFHO
 E  CRP2HO
 E  CRP3HO
 E  CRPSHO
 E  CRPFBN
 E  CRP2BN
 E  CRP3BN
 E  CRPSBN
 E  CRPFBO
 E  CRP2BO
 E  CRP3BO
 E  CRPSBO
 E  CTPFFN
 E  CTP2FN
 E  CTP3FN
 E  CTPSFN
 E  CTPFFO
 E  CTP2FO
 E  CTP3FO
 E  CTPSFO
 E  CTPFON
 E  CTP2ON
 E  CTP3ON
 E  CTPSON
 E  CTPFOO
 E  CTP2OO
 E  CTP3OO
 E  CTPSOO
 E  CTPFSN
 E  CTP2SN
 E  CTP3SN
 E  CTPSSN
 E  CTPFSO
 E  CTP2SO
 E  CTP3SO
 E  CTPSSO
 E  CTPFPN
 E  CTP2PN
 E  CTP3PN
 E  CTPSPN
 E  CTPFPO
 E  CTP2PO
 E  CTP3PO
 E  CTPSPO
 E  CTPFEN
 E  CTP2EN
 E  CTP3EN
 E  CTPSEN
 E  CTPFEO
 E  CTP2EO
 E  CTP3EO
 E  CTPSEO
 E  CTPFHO
 E  CTP2HO
 E  CTP3HO
 E  CTPSHO
 E  CTPFBN
 E  CTP2BN
 E  CTP3BN
 E  CTPSBN
 E  CTPFBO
 E  CTP2BO
 E  CTP3BO
 E  CTPSBO
 E  CEPFFN
 E  CEP2FN
 E  CEP3FN
 E  CEPSFN
 E  CEPFFO
 E  CEP2FO
 E  CEP3FO
 E  CEPSFO
 E  CEPFON
 E  CEP2ON
 E  CEP3ON
 E  CEPSON
 E  CEPFOO
 E  CEP2OO
 E  CEP3OO
 E  CEPSOO
 E  CEPFSN
 E  CEP2SN
 E  CEP3SN
 E  CEPSSN
 E  CEPFSO
 E  CEP2SO
 E  CEP3SO
 E  CEPSSO
 E  CEPFEN
 E  CEP2EN
 E  CEP3EN
 E  CEPSEN
 E  CEPFEO
 E  CEP2EO
 E  CEP3EO
 E  CEPSEO
 E  CEPFHO
 E  CEP2HO
 E  CEP3HO
 E  CEPSHO
 E  CEPFBN
 E  CEP2BN
 E  CEP3BN
 E  CEPSBN
 E  CEPFBO
 E  CEP2BO
 E  CEP3BO
 E  CEPSBO
 E  CNAF.
 E  CNA2.
 E  CNA3.
 E  CNAS.
 E  CMAF.
 E  CMA2.
 E  CMA3.
 E  CMAS.
 N  ..COST..
 E  Z1
 E  Z4
 G  ZLAND
 L  COST.DEM
COLUMNS
    F.P..FF   F.PFN              -1.   .FPFN              -1.
    F.P..FF   ..P.NE             -1.   ..P.NI             -1.
    F.P..FO   F.PFN              -1.   .OPFN              -1.
    F.P..FO   ..P.NE             -1.   ..P.NI             -1.
    F.P..FS   F.PFN              -1.   .SPFN              -1.
    F.P..FS   ..P.NE             -1.   ..P.NI             -1.
    F.P..FP   F.PFN              -1.   .PPFN              -1.
    F.P..FP   ..P.NE             -1.   ..P.NI             -1.
    F.P..FE   F.PFN              -1.   .EPFN              -1.
    F.P..FE   ..P.NE             -1.   ..P.NI             -1.
    F.P..FH   F.PFN              -1.   .HPFN              -1.
    F.P..FH   ..P.NE             -1.   ..P.NI             -1.
    F.P..FB   F.PFN              -1.   .BPFN              -1.
    F.P..FB   ..P.NE             -1.   ..P.NI             -1.
    F.P..2F   F.P2N              -1.   .FP2N              -1.
    F.P..2F   ..P.NE             -1.   ..P.NI             -1.
    F.P..2O   F.P2N              -1.   .OP2N              -1.
    F.P..2O   ..P.NE             -1.   ..P.NI             -1.
    F.P..2S   F.P2N              -1.   .SP2N              -1.
    F.P..2S   ..P.NE             -1.   ..P.NI             -1.
    F.P..2P   F.P2N              -1.   .PP2N              -1.
    F.P..2P   ..P.NE             -1.   ..P.NI             -1.
    F.P..2E   F.P2N              -1.   .EP2N              -1.
    F.P..2E   ..P.NE             -1.   ..P.NI             -1.
    F.P..2H   F.P2N              -1.   .HP2N              -1.
    F.P..2H   ..P.NE             -1.   ..P.NI             -1.
    F.P..2B   F.P2N              -1.   .BP2N              -1.
    F.P..2B   ..P.NE             -1.   ..P.NI             -1.
    F.P..3F   F.P3N              -1.   .FP3N              -1.
    F.P..3F   ..P.NE             -1.   ..P.NI             -1.
    F.P..3O   F.P3N              -1.   .OP3N              -1.
    F.P..3O   ..P.NE             -1.   ..P.NI             -1.
    F.P..3S   F.P3N              -1.   .SP3N              -1.
    F.P..3S   ..P.NE             -1.   ..P.NI             -1.
    F.P..3P   F.P3N              -1.   .PP3N              -1.
    F.P..3P   ..P.NE             -1.   ..P.NI             -1.
    F.P..3E   F.P3N              -1.   .EP3N              -1.
    F.P..3E   ..P.NE             -1.   ..P.NI             -1.
    F.P..3H   F.P3N              -1.   .HP3N              -1.
    F.P..3H   ..P.NE             -1.   ..P.NI             -1.
    F.P..3B   F.P3N              -1.   .BP3N              -1.
    F.P..3B   ..P.NE             -1.   ..P.NI             -1.
    F.P..SF   F.PSN              -1.   .FPSN              -1.
    F.P..SF   ..P.NE             -1.   ..P.NI             -1.
    F.P..SO   F.PSN              -1.   .OPSN              -1.
    F.P..SO   ..P.NE             -1.   ..P.NI             -1.
    F.P..SS   F.PSN              -1.   .SPSN              -1.
    F.P..SS   ..P.NE             -1.   ..P.NI             -1.
    F.P..SP   F.PSN              -1.   .PPSN              -1.
    F.P..SP   ..P.NE             -1.   ..P.NI             -1.
    F.P..SE   F.PSN              -1.   .EPSN              -1.
    F.P..SE   ..P.NE             -1.   ..P.NI             -1.
    F.P..SH   F.PSN              -1.   .HPSN              -1.
    F.P..SH   ..P.NE             -1.   ..P.NI             -1.
    F.P..SB   F.PSN              -1.   .BPSN              -1.
    F.P..SB   ..P.NE             -1.   ..P.NI             -1.
    O.P..FF   O.PFN              -1.   .FPFN              -1.
    O.P..FF   ..P.NE             -1.   ..P.NI             -1.
    O.P..FO   O.PFN              -1.   .OPFN              -1.
    O.P..FO   ..P.NE             -1.   ..P.NI             -1.
    O.P..FS   O.PFN              -1.   .SPFN              -1.
    O.P..FS   ..P.NE             -1.   ..P.NI             -1.
    O.P..FP   O.PFN              -1.   .PPFN              -1.
    O.P..FP   ..P.NE             -1.   ..P.NI             -1.
    O.P..FE   O.PFN              -1.   .EPFN              -1.
    O.P..FE   ..P.NE             -1.   ..P.NI             -1.
    O.P..FH   O.PFN              -1.   .HPFN              -1.
    O.P..FH   ..P.NE             -1.   ..P.NI             -1.
    O.P..FB   O.PFN              -1.   .BPFN              -1.
    O.P..FB   ..P.NE             -1.   ..P.NI             -1.
    O.P..2F   O.P2N              -1.   .FP2N              -1.
    O.P..2F   ..P.NE             -1.   ..P.NI             -1.
    O.P..2O   O.P2N              -1.   .OP2N              -1.
    O.P..2O   ..P.NE             -1.   ..P.NI             -1.
    O.P..2S   O.P2N              -1.   .SP2N              -1.
    O.P..2S   ..P.NE             -1.   ..P.NI             -1.
    O.P..2P   O.P2N              -1.   .PP2N              -1.
    O.P..2P   ..P.NE             -1.   ..P.NI             -1.
    O.P..2E   O.P2N              -1.   .EP2N              -1.
    O.P..2E   ..P.NE             -1.   ..P.NI             -1.
    O.P..2H   O.P2N              -1.   .HP2N              -1.
    O.P..2H   ..P.NE             -1.   ..P.NI             -1.
    O.P..2B   O.P2N              -1.   .BP2N              -1.
    O.P..2B   ..P.NE             -1.   ..P.NI             -1.
    O.P..3F   O.P3N              -1.   .FP3N              -1.
    O.P..3F   ..P.NE             -1.   ..P.NI             -1.
    O.P..3O   O.P3N              -1.   .OP3N              -1.
    O.P..3O   ..P.NE             -1.   ..P.NI             -1.
    O.P..3S   O.P3N              -1.   .SP3N              -1.
    O.P..3S   ..P.NE             -1.   ..P.NI             -1.
    O.P..3P   O.P3N              -1.   .PP3N              -1.
    O.P..3P   ..P.NE             -1.   ..P.NI             -1.
    O.P..3E   O.P3N              -1.   .EP3N              -1.
    O.P..3E   ..P.NE             -1.   ..P.NI             -1.
    O.P..3H   O.P3N              -1.   .HP3N              -1.
    O.P..3H   ..P.NE             -1.   ..P.NI             -1.
    O.P..3B   O.P3N              -1.   .BP3N              -1.
    O.P..3B   ..P.NE             -1.   ..P.NI             -1.
    O.P..SF   O.PSN              -1.   .FPSN              -1.
    O.P..SF   ..P.NE             -1.   ..P.NI             -1.
    O.P..SO   O.PSN              -1.   .OPSN              -1.
    O.P..SO   ..P.NE             -1.   ..P.NI             -1.
    O.P..SS   O.PSN              -1.   .SPSN              -1.
    O.P..SS   ..P.NE             -1.   ..P.NI             -1.
    O.P..SP   O.PSN              -1.   .PPSN              -1.
    O.P..SP   ..P.NE             -1.   ..P.NI             -1.
    O.P..SE   O.PSN              -1.   .EPSN              -1.
    O.P..SE   ..P.NE             -1.   ..P.NI             -1.
    O.P..SH   O.PSN              -1.   .HPSN              -1.
    O.P..SH   ..P.NE             -1.   ..P.NI             -1.
    O.P..SB   O.PSN              -1.   .BPSN              -1.
    O.P..SB   ..P.NE             -1.   ..P.NI             -1.
    S.P..FF   S.PFN              -1.   .FPFN              -1.
    S.P..FF   ..P.NE             -1.   ..P.NI             -1.
    S.P..FO   S.PFN              -1.   .OPFN              -1.
    S.P..FO   ..P.NE             -1.   ..P.NI             -1.
    S.P..FS   S.PFN              -1.   .SPFN              -1.
    S.P..FS   ..P.NE             -1.   ..P.NI             -1.
    S.P..FP   S.PFN              -1.   .PPFN              -1.
    S.P..FP   ..P.NE             -1.   ..P.NI             -1.
    S.P..FE   S.PFN              -1.   .EPFN              -1.
    S.P..FE   ..P.NE             -1.   ..P.NI             -1.
    S.P..FH   S.PFN              -1.   .HPFN              -1.
    S.P..FH   ..P.NE             -1.   ..P.NI             -1.
    S.P..FB   S.PFN              -1.   .BPFN              -1.
    S.P..FB   ..P.NE             -1.   ..P.NI             -1.
    S.P..2F   S.P2N              -1.   .FP2N              -1.
    S.P..2F   ..P.NE             -1.   ..P.NI             -1.
    S.P..2O   S.P2N              -1.   .OP2N              -1.
    S.P..2O   ..P.NE             -1.   ..P.NI             -1.
    S.P..2S   S.P2N              -1.   .SP2N              -1.
    S.P..2S   ..P.NE             -1.   ..P.NI             -1.
    S.P..2P   S.P2N              -1.   .PP2N              -1.
    S.P..2P   ..P.NE             -1.   ..P.NI             -1.
    S.P..2E   S.P2N              -1.   .EP2N              -1.
    S.P..2E   ..P.NE             -1.   ..P.NI             -1.
    S.P..2H   S.P2N              -1.   .HP2N              -1.
    S.P..2H   ..P.NE             -1.   ..P.NI             -1.
    S.P..2B   S.P2N              -1.   .BP2N              -1.
    S.P..2B   ..P.NE             -1.   ..P.NI             -1.
    S.P..3F   S.P3N              -1.   .FP3N              -1.
    S.P..3F   ..P.NE             -1.   ..P.NI             -1.
    S.P..3O   S.P3N              -1.   .OP3N              -1.
    S.P..3O   ..P.NE             -1.   ..P.NI             -1.
    S.P..3S   S.P3N              -1.   .SP3N              -1.
    S.P..3S   ..P.NE             -1.   ..P.NI             -1.
    S.P..3P   S.P3N              -1.   .PP3N              -1.
    S.P..3P   ..P.NE             -1.   ..P.NI             -1.
    S.P..3E   S.P3N              -1.   .EP3N              -1.
    S.P..3E   ..P.NE             -1.   ..P.NI             -1.
    S.P..3H   S.P3N              -1.   .HP3N              -1.
    S.P..3H   ..P.NE             -1.   ..P.NI             -1.
    S.P..3B   S.P3N              -1.   .BP3N              -1.
    S.P..3B   ..P.NE             -1.   ..P.NI             -1.
    S.P..SF   S.PSN              -1.   .FPSN              -1.
    S.P..SF   ..P.NE             -1.   ..P.NI             -1.
    S.P..SO   S.PSN              -1.   .OPSN              -1.
    S.P..SO   ..P.NE             -1.   ..P.NI             -1.
    S.P..SS   S.PSN              -1.   .SPSN              -1.
    S.P..SS   ..P.NE             -1.   ..P.NI             -1.
    S.P..SP   S.PSN              -1.   .PPSN              -1.
    S.P..SP   ..P.NE             -1.   ..P.NI             -1.
    S.P..SE   S.PSN              -1.   .EPSN              -1.
    S.P..SE   ..P.NE             -1.   ..P.NI             -1.
    S.P..SH   S.PSN              -1.   .HPSN              -1.
    S.P..SH   ..P.NE             -1.   ..P.NI             -1.
    S.P..SB   S.PSN              -1.   .BPSN              -1.
    S.P..SB   ..P.NE             -1.   ..P.NI             -1.
    E.P..FF   E.PFN              -1.   .FPFN              -1.
    E.P..FF   ..P.NE             -1.   ..P.NI             -1.
    E.P..FO   E.PFN              -1.   .OPFN              -1.
    E.P..FO   ..P.NE             -1.   ..P.NI             -1.
    E.P..FS   E.PFN              -1.   .SPFN              -1.
    E.P..FS   ..P.NE             -1.   ..P.NI             -1.
    E.P..FP   E.PFN              -1.   .PPFN              -1.
    E.P..FP   ..P.NE             -1.   ..P.NI             -1.
    E.P..FE   E.PFN              -1.   .EPFN              -1.
    E.P..FE   ..P.NE             -1.   ..P.NI             -1.
    E.P..FH   E.PFN              -1.   .HPFN              -1.
    E.P..FH   ..P.NE             -1.   ..P.NI             -1.
    E.P..FB   E.PFN              -1.   .BPFN              -1.
    E.P..FB   ..P.NE             -1.   ..P.NI             -1.
    E.P..2F   E.P2N              -1.   .FP2N              -1.
    E.P..2F   ..P.NE             -1.   ..P.NI             -1.
    E.P..2O   E.P2N              -1.   .OP2N              -1.
    E.P..2O   ..P.NE             -1.   ..P.NI             -1.
    E.P..2S   E.P2N              -1.   .SP2N              -1.
    E.P..2S   ..P.NE             -1.   ..P.NI             -1.
    E.P..2P   E.P2N              -1.   .PP2N              -1.
    E.P..2P   ..P.NE             -1.   ..P.NI             -1.
    E.P..2E   E.P2N              -1.   .EP2N              -1.
    E.P..2E   ..P.NE             -1.   ..P.NI             -1.
    E.P..2H   E.P2N              -1.   .HP2N              -1.
    E.P..2H   ..P.NE             -1.   ..P.NI             -1.
    E.P..2B   E.P2N              -1.   .BP2N              -1.
    E.P..2B   ..P.NE             -1.   ..P.NI             -1.
    E.P..3F   E.P3N              -1.   .FP3N              -1.
    E.P..3F   ..P.NE             -1.   ..P.NI             -1.
    E.P..3O   E.P3N              -1.   .OP3N              -1.
    E.P..3O   ..P.NE             -1.   ..P.NI             -1.
    E.P..3S   E.P3N              -1.   .SP3N              -1.
    E.P..3S   ..P.NE             -1.   ..P.NI             -1.
    E.P..3P   E.P3N              -1.   .PP3N              -1.
    E.P..3P   ..P.NE             -1.   ..P.NI             -1.
    E.P..3E   E.P3N              -1.   .EP3N              -1.
    E.P..3E   ..P.NE             -1.   ..P.NI             -1.
    E.P..3H   E.P3N              -1.   .HP3N              -1.
    E.P..3H   ..P.NE             -1.   ..P.NI             -1.
    E.P..3B   E.P3N              -1.   .BP3N              -1.
    E.P..3B   ..P.NE             -1.   ..P.NI             -1.
    E.P..SF   E.PSN              -1.   .FPSN              -1.
    E.P..SF   ..P.NE             -1.   ..P.NI             -1.
    E.P..SO   E.PSN              -1.   .OPSN              -1.
    E.P..SO   ..P.NE             -1.   ..P.NI             -1.
    E.P..SS   E.PSN              -1.   .SPSN              -1.
    E.P..SS   ..P.NE             -1.   ..P.NI             -1.
    E.P..SP   E.PSN              -1.   .PPSN              -1.
    E.P..SP   ..P.NE             -1.   ..P.NI             -1.
    E.P..SE   E.PSN              -1.   .EPSN              -1.
    E.P..SE   ..P.NE             -1.   ..P.NI             -1.
    E.P..SH   E.PSN              -1.   .HPSN              -1.
    E.P..SH   ..P.NE             -1.   ..P.NI             -1.
    E.P..SB   E.PSN              -1.   .BPSN              -1.
    E.P..SB   ..P.NE             -1.   ..P.NI             -1.
    H.P..FF   H.PFN              -1.   .FPFN              -1.
    H.P..FF   ..P.NE             -1.   ..P.NI             -1.
    H.P..FO   H.PFN              -1.   .OPFN              -1.
    H.P..FO   ..P.NE             -1.   ..P.NI             -1.
    H.P..FS   H.PFN              -1.   .SPFN              -1.
    H.P..FS   ..P.NE             -1.   ..P.NI             -1.
    H.P..FP   H.PFN              -1.   .PPFN              -1.
    H.P..FP   ..P.NE             -1.   ..P.NI             -1.
    H.P..FE   H.PFN              -1.   .EPFN              -1.
    H.P..FE   ..P.NE             -1.   ..P.NI             -1.
    H.P..FH   H.PFN              -1.   .HPFN              -1.
    H.P..FH   ..P.NE             -1.   ..P.NI             -1.
    H.P..FB   H.PFN              -1.   .BPFN              -1.
    H.P..FB   ..P.NE             -1.   ..P.NI             -1.
    H.P..2F   H.P2N              -1.   .FP2N              -1.
    H.P..2F   ..P.NE             -1.   ..P.NI             -1.
    H.P..2O   H.P2N              -1.   .OP2N              -1.
    H.P..2O   ..P.NE             -1.   ..P.NI             -1.
    H.P..2S   H.P2N              -1.   .SP2N              -1.
    H.P..2S   ..P.NE             -1.   ..P.NI             -1.
    H.P..2P   H.P2N              -1.   .PP2N              -1.
    H.P..2P   ..P.NE             -1.   ..P.NI             -1.
    H.P..2E   H.P2N              -1.   .EP2N              -1.
    H.P..2E   ..P.NE             -1.   ..P.NI             -1.
    H.P..2H   H.P2N              -1.   .HP2N              -1.
    H.P..2H   ..P.NE             -1.   ..P.NI             -1.
    H.P..2B   H.P2N              -1.   .BP2N              -1.
    H.P..2B   ..P.NE             -1.   ..P.NI             -1.
    H.P..3F   H.P3N              -1.   .FP3N              -1.
    H.P..3F   ..P.NE             -1.   ..P.NI             -1.
    H.P..3O   H.P3N              -1.   .OP3N              -1.
    H.P..3O   ..P.NE             -1.   ..P.NI             -1.
    H.P..3S   H.P3N              -1.   .SP3N              -1.
    H.P..3S   ..P.NE             -1.   ..P.NI             -1.
    H.P..3P   H.P3N              -1.   .PP3N              -1.
    H.P..3P   ..P.NE             -1.   ..P.NI             -1.
    H.P..3E   H.P3N              -1.   .EP3N              -1.
    H.P..3E   ..P.NE             -1.   ..P.NI             -1.
    H.P..3H   H.P3N              -1.   .HP3N              -1.
    H.P..3H   ..P.NE             -1.   ..P.NI             -1.
    H.P..3B   H.P3N              -1.   .BP3N              -1.
    H.P..3B   ..P.NE             -1.   ..P.NI             -1.
    H.P..SF   H.PSN              -1.   .FPSN              -1.
    H.P..SF   ..P.NE             -1.   ..P.NI             -1.
    H.P..SO   H.PSN              -1.   .OPSN              -1.
    H.P..SO   ..P.NE             -1.   ..P.NI             -1.
    H.P..SS   H.PSN              -1.   .SPSN              -1.
    H.P..SS   ..P.NE             -1.   ..P.NI             -1.
    H.P..SP   H.PSN              -1.   .PPSN              -1.
    H.P..SP   ..P.NE             -1.   ..P.NI             -1.
    H.P..SE   H.PSN              -1.   .EPSN              -1.
    H.P..SE   ..P.NE             -1.   ..P.NI             -1.
    H.P..SH   H.PSN              -1.   .HPSN              -1.
    H.P..SH   ..P.NE             -1.   ..P.NI             -1.
    H.P..SB   H.PSN              -1.   .BPSN              -1.
    H.P..SB   ..P.NE             -1.   ..P.NI             -1.
    B.P..FF   B.PFN              -1.   .FPFN              -1.
    B.P..FF   ..P.NE             -1.   ..P.NI             -1.
    B.P..FO   B.PFN              -1.   .OPFN              -1.
    B.P..FO   ..P.NE             -1.   ..P.NI             -1.
    B.P..FS   B.PFN              -1.   .SPFN              -1.
    B.P..FS   ..P.NE             -1.   ..P.NI             -1.
    B.P..FP   B.PFN              -1.   .PPFN              -1.
    B.P..FP   ..P.NE             -1.   ..P.NI             -1.
    B.P..FE   B.PFN              -1.   .EPFN              -1.
    B.P..FE   ..P.NE             -1.   ..P.NI             -1.
    B.P..FH   B.PFN              -1.   .HPFN              -1.
    B.P..FH   ..P.NE             -1.   ..P.NI             -1.
    B.P..FB   B.PFN              -1.   .BPFN              -1.
    B.P..FB   ..P.NE             -1.   ..P.NI             -1.
    B.P..2F   B.P2N              -1.   .FP2N              -1.
    B.P..2F   ..P.NE             -1.   ..P.NI             -1.
    B.P..2O   B.P2N              -1.   .OP2N              -1.
    B.P..2O   ..P.NE             -1.   ..P.NI             -1.
    B.P..2S   B.P2N              -1.   .SP2N              -1.
    B.P..2S   ..P.NE             -1.   ..P.NI             -1.
    B.P..2P   B.P2N              -1.   .PP2N              -1.
    B.P..2P   ..P.NE             -1.   ..P.NI             -1.
    B.P..2E   B.P2N              -1.   .EP2N              -1.
    B.P..2E   ..P.NE             -1.   ..P.NI             -1.
    B.P..2H   B.P2N              -1.   .HP2N              -1.
    B.P..2H   ..P.NE             -1.   ..P.NI             -1.
    B.P..2B   B.P2N              -1.   .BP2N              -1.
    B.P..2B   ..P.NE             -1.   ..P.NI             -1.
    B.P..3F   B.P3N              -1.   .FP3N              -1.
    B.P..3F   ..P.NE             -1.   ..P.NI             -1.
    B.P..3O   B.P3N              -1.   .OP3N              -1.
    B.P..3O   ..P.NE             -1.   ..P.NI             -1.
    B.P..3S   B.P3N              -1.   .SP3N              -1.
    B.P..3S   ..P.NE             -1.   ..P.NI             -1.
    B.P..3P   B.P3N              -1.   .PP3N              -1.
    B.P..3P   ..P.NE             -1.   ..P.NI             -1.
    B.P..3E   B.P3N              -1.   .EP3N              -1.
    B.P..3E   ..P.NE             -1.   ..P.NI             -1.
    B.P..3H   B.P3N              -1.   .HP3N              -1.
    B.P..3H   ..P.NE             -1.   ..P.NI             -1.
    B.P..3B   B.P3N              -1.   .BP3N              -1.
    B.P..3B   ..P.NE             -1.   ..P.NI             -1.
    B.P..SF   B.PSN              -1.   .FPSN              -1.
    B.P..SF   ..P.NE             -1.   ..P.NI             -1.
    B.P..SO   B.PSN              -1.   .OPSN              -1.
    B.P..SO   ..P.NE             -1.   ..P.NI             -1.
    B.P..SS   B.PSN              -1.   .SPSN              -1.
    B.P..SS   ..P.NE             -1.   ..P.NI             -1.
    B.P..SP   B.PSN              -1.   .PPSN              -1.
    B.P..SP   ..P.NE             -1.   ..P.NI             -1.
    B.P..SE   B.PSN              -1.   .EPSN              -1.
    B.P..SE   ..P.NE             -1.   ..P.NI             -1.
    B.P..SH   .HPSN              -1.   B.PSN              -1.
    B.P..SH   ..P.NE             -1.   ..P.NI             -1.
    B.P..SB   B.PSN              -1.   .BPSN              -1.
    B.P..SB   ..P.NE             -1.   ..P.NI             -1.
    ..P....E  ..P.NE             -1.   ZLAND               1.
    ..P....I  ..P.NI             -1.   ZLAND              -1.
    RPPNNFR   RPPST               1.   LVPFA        64.737991
    RPPNNFR   BAPST        1.7489996   BAP3T        1.7489996
    RPPNNFR   BAP2T        1.7489996   BAPFT        1.7489996
    RPPNNFR   ESPST        5.1229992   ESP3T        5.1229992
    RPPNNFR   ESP2T        5.1229992   ESPFT        5.1229992
    RPPNNFR   EPPST        3.8619995   EPP3T        3.8619995
    RPPNNFR   EPP2T        3.8619995   EPPFT        3.8619995
    RPPNNFR   PAPST        115.53799   PAP3T        115.53799
    RPPNNFR   PAP2T        115.53799   PAPFT        115.53799
    RPPNNFR   SAPST        1.0279999   SAP3T        1.0279999
    RPPNNFR   SAP2T        1.0279999   SAPFT        1.0279999
    RPPNNFR   OAPST        7.9509993   OAP3T        7.9509993
    RPPNNFR   OAP2T        7.9509993   OAPFT        7.9509993
    RPPNNFR   FAPST        28.817993   FAP3T        28.817993
    RPPNNFR   FAP2T        28.817993   FAPFT        28.817993
    RPPNNFR   CRPSRN       8173.8398   CRP3RN       4904.3047
    RPPNNFR   CRP2RN       4904.3047   CRPFRN       2452.1509
    RPPNNFR   CBPFRN       108984.56   HSPST        221.28699
    RPPNNFR   HSP3T        221.28699   HSP2T        221.28699
    RPPNNFR   HSPFT        221.28699   HLPST            13.12
    RPPNNFR   HLP3T            13.12   HLP2T            13.12
    RPPNNFR   HLPFT            13.12   HMPST        2.3759995
    RPPNNFR   HMP3T        2.3759995   HMP2T        2.3759995
    RPPNNFR   HMPFT        2.3759995   H7PFT        1.3769999
    RPPNNFR   Z1                  1.   Z4                  1.
    RPPNN2R   RPPST               1.   LVP2A        64.737991
    RPPNN2R   BAPST        1.7489996   BAP3T        1.7489996
    RPPNN2R   BAP2T        1.7489996   ESPST        5.1229992
    RPPNN2R   ESP3T        5.1229992   ESP2T        5.1229992
    RPPNN2R   EPPST        3.8619995   EPP3T        3.8619995
    RPPNN2R   EPP2T        3.8619995   PAPST        115.53799
    RPPNN2R   PAP3T        115.53799   PAP2T        115.53799
    RPPNN2R   SAPST        1.0279999   SAP3T        1.0279999
    RPPNN2R   SAP2T        1.0279999   OAPST        7.9509993
    RPPNN2R   OAP3T        7.9509993   OAP2T        7.9509993
    RPPNN2R   FAPST        28.817993   FAP3T        28.817993
    RPPNN2R   FAP2T        28.817993   CRPSRN       8173.8398
    RPPNN2R   CRP3RN       4904.3047   CRP2RN       2452.1509
    RPPNN2R   CBP2RN       108984.56   HSPST        221.28699
    RPPNN2R   HSP3T        221.28699   HSP2T        221.28699
    RPPNN2R   HLPST            13.12   HLP3T            13.12
    RPPNN2R   HLP2T            13.12   HMPST        2.3759995
    RPPNN2R   HMP3T        2.3759995   HMP2T        2.3759995
    RPPNN2R   Z4                  1.
    RPPNN3R   RPPST               1.   LVP3A        64.737991
    RPPNN3R   BAPST        1.7489996   BAP3T        1.7489996
    RPPNN3R   ESPST        5.1229992   ESP3T        5.1229992
    RPPNN3R   EPPST        3.8619995   EPP3T        3.8619995
    RPPNN3R   PAPST        115.53799   PAP3T        115.53799
    RPPNN3R   SAPST        1.0279999   SAP3T        1.0279999
    RPPNN3R   OAPST        7.9509993   OAP3T        7.9509993
    RPPNN3R   FAPST        28.817993   FAP3T        28.817993
    RPPNN3R   CRPSRN       8173.8398   CRP3RN       2452.1509
    RPPNN3R   CBP3RN       108984.56   HSPST        221.28699
    RPPNN3R   HSP3T        221.28699   HLPST            13.12
    RPPNN3R   HLP3T            13.12   HMPST        2.3759995
    RPPNN3R   HMP3T        2.3759995   Z4                  1.
    RPPNNSR   RPPST               1.   LVPSA        64.737991
    RPPNNSR   BAPST        1.7489996   ESPST        5.1229992
    RPPNNSR   EPPST        3.8619995   PAPST        115.53799
    RPPNNSR   SAPST        1.0279999   OAPST        7.9509993
    RPPNNSR   FAPST        28.817993   CRPSRN       4086.9199
    RPPNNSR   CBPSRN       108984.56   HSPST        221.28699
    RPPNNSR   HLPST            13.12   HMPST        2.3759995
    RPPNNSR   Z4                  1.
    FAPSDFR   FAPFT              -1.   FAP2T              -1.
    FAPSDFR   FAP3T              -1.   FAPST              -1.
    FAPSDFR   FAPSR               1.   FAPFP        24.033997
    FAPSDFR   FAP2P        24.033997   FAP3P        24.033997
    FAPSDFR   FAPSP        24.033997   FAAFO1              1.
    FAPSDFR   FAA2O1              1.   FAA3O1              1.
    FAPSDFR   FAASO1              1.   CTPSFO       3.1549997
    FAPSDFR   CTP3FO       1.8919992   CTP2FO       1.8919992
    FAPSDFR   CTPFFO       .94699997   CRPSFO       9.4639997
    FAPSDFR   CRP3FO       5.6789999   CRP2FO       5.6789999
    FAPSDFR   CRPFFO       2.8389997   CDPFFO       .72599995
    FAPSD2R   FAP2T              -1.   FAP3T              -1.
    FAPSD2R   FAPST              -1.   FAPSR               1.
    FAPSD2R   FAP2P        24.033997   FAP3P        24.033997
    FAPSD2R   FAPSP        24.033997   FAA2O1              1.
    FAPSD2R   FAA3O1              1.   FAASO1              1.
    FAPSD2R   CTPSFO       3.1549997   CTP3FO       1.8919992
    FAPSD2R   CTP2FO       .94699997   CRPSFO       9.4639997
    FAPSD2R   CRP3FO       5.6789999   CRP2FO       2.8389997
    FAPSD2R   CDP2FO       .72599995
    FAPSD3R   FAP3T              -1.   FAPST              -1.
    FAPSD3R   FAPSR               1.   FAP3P        24.033997
    FAPSD3R   FAPSP        24.033997   FAA3O1              1.
    FAPSD3R   FAASO1              1.   CTPSFO       3.1549997
    FAPSD3R   CTP3FO       .94699997   CRPSFO       9.4639997
    FAPSD3R   CRP3FO       2.8389997   CDP3FO       .72599995
    FAPSDSR   FAPST              -1.   FAPSR               1.
    FAPSDSR   FAPSP        24.033997   FAASO1              1.
    FAPSDSR   CTPSFO       1.5769997   CRPSFO       4.7319994
    FAPSDSR   CDPSFO       .72599995
    FAPSDFN   FAPSN               1.   FAPFP        24.033997
    FAPSDFN   FAP2P        24.033997   FAP3P        24.033997
    FAPSDFN   FAPSP        24.033997   FAAFO1              1.
    FAPSDFN   FAA2O1              1.   FAA3O1              1.
    FAPSDFN   FAASO1              1.   F.PFN               1.
    FAPSDFN   CTPSFO       3.1549997   CTP3FO       1.8919992
    FAPSDFN   CTP2FO       1.8919992   CTPFFO       .94699997
    FAPSDFN   CRPSFO       9.4639997   CRP3FO       5.6789999
    FAPSDFN   CRP2FO       5.6789999   CRPFFO       2.8389997
    FAPSDFN   CDPFFO       .72599995   ..P.NE              1.
    FAPSD2N   FAPSN               1.   FAP2P        24.033997
    FAPSD2N   FAP3P        24.033997   FAPSP        24.033997
    FAPSD2N   FAA2O1              1.   FAA3O1              1.
    FAPSD2N   FAASO1              1.   F.P2N               1.
    FAPSD2N   CTPSFO       3.1549997   CTP3FO       1.8919992
    FAPSD2N   CTP2FO       .94699997   CRPSFO       9.4639997
    FAPSD2N   CRP3FO       5.6789999   CRP2FO       2.8389997
    FAPSD2N   CDP2FO       .72599995   ..P.NE              1.
    FAPSD3N   FAPSN               1.   FAP3P        24.033997
    FAPSD3N   FAPSP        24.033997   FAA3O1              1.
    FAPSD3N   FAASO1              1.   F.P3N               1.
    FAPSD3N   CTPSFO       3.1549997   CTP3FO       .94699997
    FAPSD3N   CRPSFO       9.4639997   CRP3FO       2.8389997
    FAPSD3N   CDP3FO       .72599995   ..P.NE              1.
    FAPSDSN   FAPSN               1.   FAPSP        24.033997
    FAPSDSN   FAASO1              1.   F.PSN               1.
    FAPSDSN   CTPSFO       1.5769997   CRPSFO       4.7319994
    FAPSDSN   CDPSFO       .72599995   ..P.NE              1.
    FAPNRFN   FAPFP             -35.   FAP2P             -35.
    FAPNRFN   FAP3P             -35.   FAPSP             -35.
    FAPNRFN   .FPFN               1.   CTPSFN       4.5939999
    FAPNRFN   CTP3FN       2.7559996   CTP2FN       2.7559996
    FAPNRFN   CTPFFN       1.3789997   CRPSFN          13.782
    FAPNRFN   CRP3FN       8.2699995   CRP2FN       8.2699995
    FAPNRFN   CRPFFN       4.1349993   CBPFFN         183.752
    FAPNRFN   ..P.NI              1.
    FAPNR2N   FAP2P             -35.   FAP3P             -35.
    FAPNR2N   FAPSP             -35.   .FP2N               1.
    FAPNR2N   CTPSFN       4.5939999   CTP3FN       2.7559996
    FAPNR2N   CTP2FN       1.3789997   CRPSFN          13.782
    FAPNR2N   CRP3FN       8.2699995   CRP2FN       4.1349993
    FAPNR2N   CBP2FN         183.752   ..P.NI              1.
    FAPNR3N   FAP3P             -35.   FAPSP             -35.
    FAPNR3N   .FP3N               1.   CTPSFN       4.5939999
    FAPNR3N   CTP3FN       1.3789997   CRPSFN          13.782
    FAPNR3N   CRP3FN       4.1349993   CBP3FN         183.752
    FAPNR3N   ..P.NI              1.
    FAPNRSN   FAPSP             -35.   .FPSN               1.
    FAPNRSN   CTPSFN       2.2959995   CRPSFN       6.8909998
    FAPNRSN   CBPSFN         183.752   ..P.NI              1.
    FAPNVFN   LVPFA               1.   FAPFP             -35.
    FAPNVFN   FAP2P             -35.   FAP3P             -35.
    FAPNVFN   FAPSP             -35.   LVPSN               1.
    FAPNVFN   CSPFFN       8.1689997   CTPSFN       4.5939999
    FAPNVFN   CTP3FN       2.7559996   CTP2FN       2.7559996
    FAPNVFN   CTPFFN       1.3789997   CRPSFN          13.782
    FAPNVFN   CRP3FN       8.2699995   CRP2FN       8.2699995
    FAPNVFN   CRPFFN       4.1349993   CBPFFN         175.002
    FAPNVFN   LVPSN2              1.
    FAPNV2N   LVP2A               1.   FAP2P             -35.
    FAPNV2N   FAP3P             -35.   FAPSP             -35.
    FAPNV2N   LVPSN               1.   CSP2FN       8.1689997
    FAPNV2N   CTPSFN       4.5939999   CTP3FN       2.7559996
    FAPNV2N   CTP2FN       1.3789997   CRPSFN          13.782
    FAPNV2N   CRP3FN       8.2699995   CRP2FN       4.1349993
    FAPNV2N   CBP2FN         175.002   LVPSN2              1.
    FAPNV3N   LVP3A               1.   FAP3P             -35.
    FAPNV3N   FAPSP             -35.   LVPSN               1.
    FAPNV3N   CSP3FN       8.1689997   CTPSFN       4.5939999
    FAPNV3N   CTP3FN       1.3789997   CRPSFN          13.782
    FAPNV3N   CRP3FN       4.1349993   CBP3FN         175.002
    FAPNV3N   LVPSN2              1.
    FAPNVSN   LVPSA               1.   FAPSP             -35.
    FAPNVSN   LVPSN               1.   CSPSFN       8.1689997
    FAPNVSN   CTPSFN       2.2959995   CRPSFN       6.8909998
    FAPNVSN   CBPSFN         175.002   LVPSN2              1.
    OAPSDFR   OAPFT              -1.   OAP2T              -1.
    OAPSDFR   OAP3T              -1.   OAPST              -1.
    OAPSDFR   OAPSR               1.   OAPFP        30.799988
    OAPSDFR   OAP2P        30.799988   OAP3P        30.799988
    OAPSDFR   OAPSP        30.799988   OAAFO1              1.
    OAPSDFR   OAA2O1              1.   OAA3O1              1.
    OAPSDFR   OAASO1              1.   CEPSOO       1.0499992
    OAPSDFR   CEP3OO             .63   CEP2OO             .63
    OAPSDFR   CEPFOO            .315   CTPSOO       6.4679995
    OAPSDFR   CTP3OO       3.8809996   CTP2OO       3.8809996
    OAPSDFR   CTPFOO       1.9399996   CRPSOO       19.403992
    OAPSDFR   CRP3OO       11.641999   CRP2OO       11.641999
    OAPSDFR   CRPFOO       5.8209991   CDPFOO       1.4519997
    OAPSD2R   OAP2T              -1.   OAP3T              -1.
    OAPSD2R   OAPST              -1.   OAPSR               1.
    OAPSD2R   OAP2P        30.799988   OAP3P        30.799988
    OAPSD2R   OAPSP        30.799988   OAA2O1              1.
    OAPSD2R   OAA3O1              1.   OAASO1              1.
    OAPSD2R   CEPSOO       1.0499992   CEP3OO             .63
    OAPSD2R   CEP2OO            .315   CTPSOO       6.4679995
    OAPSD2R   CTP3OO       3.8809996   CTP2OO       1.9399996
    OAPSD2R   CRPSOO       19.403992   CRP3OO       11.641999
    OAPSD2R   CRP2OO       5.8209991   CDP2OO       1.4519997
    OAPSD3R   OAP3T              -1.   OAPST              -1.
    OAPSD3R   OAPSR               1.   OAP3P        30.799988
    OAPSD3R   OAPSP        30.799988   OAA3O1              1.
    OAPSD3R   OAASO1              1.   CEPSOO       1.0499992
    OAPSD3R   CEP3OO            .315   CTPSOO       6.4679995
    OAPSD3R   CTP3OO       1.9399996   CRPSOO       19.403992
    OAPSD3R   CRP3OO       5.8209991   CDP3OO       1.4519997
    OAPSDSR   OAPST              -1.   OAPSR               1.
    OAPSDSR   OAPSP        30.799988   OAASO1              1.
    OAPSDSR   CEPSOO       .52499998   CTPSOO       3.2339993
    OAPSDSR   CRPSOO       9.7019997   CDPSOO       1.4519997
    OAPSDFN   OAPSN               1.   OAPFP        30.799988
    OAPSDFN   OAP2P        30.799988   OAP3P        30.799988
    OAPSDFN   OAPSP        30.799988   OAAFO1              1.
    OAPSDFN   OAA2O1              1.   OAA3O1              1.
    OAPSDFN   OAASO1              1.   O.PFN               1.
    OAPSDFN   CEPSOO       1.0499992   CEP3OO             .63
    OAPSDFN   CEP2OO             .63   CEPFOO            .315
    OAPSDFN   CTPSOO       6.4679995   CTP3OO       3.8809996
    OAPSDFN   CTP2OO       3.8809996   CTPFOO       1.9399996
    OAPSDFN   CRPSOO       19.403992   CRP3OO       11.641999
    OAPSDFN   CRP2OO       11.641999   CRPFOO       5.8209991
    OAPSDFN   CDPFOO       1.4519997   ..P.NE              1.
    OAPSD2N   OAPSN               1.   OAP2P        30.799988
    OAPSD2N   OAP3P        30.799988   OAPSP        30.799988
    OAPSD2N   OAA2O1              1.   OAA3O1              1.
    OAPSD2N   OAASO1              1.   O.P2N               1.
    OAPSD2N   CEPSOO       1.0499992   CEP3OO             .63
    OAPSD2N   CEP2OO            .315   CTPSOO       6.4679995
    OAPSD2N   CTP3OO       3.8809996   CTP2OO       1.9399996
    OAPSD2N   CRPSOO       19.403992   CRP3OO       11.641999
    OAPSD2N   CRP2OO       5.8209991   CDP2OO       1.4519997
    OAPSD2N   ..P.NE              1.
    OAPSD3N   OAPSN               1.   OAP3P        30.799988
    OAPSD3N   OAPSP        30.799988   OAA3O1              1.
    OAPSD3N   OAASO1              1.   O.P3N               1.
    OAPSD3N   CEPSOO       1.0499992   CEP3OO            .315
    OAPSD3N   CTPSOO       6.4679995   CTP3OO       1.9399996
    OAPSD3N   CRPSOO       19.403992   CRP3OO       5.8209991
    OAPSD3N   CDP3OO       1.4519997   ..P.NE              1.
    OAPSDSN   OAPSN               1.   OAPSP        30.799988
    OAPSDSN   OAASO1              1.   O.PSN               1.
    OAPSDSN   CEPSOO       .52499998   CTPSOO       3.2339993
    OAPSDSN   CRPSOO       9.7019997   CDPSOO       1.4519997
    OAPSDSN   ..P.NE              1.
    OAPNRFN   OAPFP       -91.475998   OAP2P       -91.475998
    OAPNRFN   OAP3P       -91.475998   OAPSP       -91.475998
    OAPNRFN   .OPFN               1.   CEPSON       1.0499992
    OAPNRFN   CEP3ON             .63   CEP2ON             .63
    OAPNRFN   CEPFON            .315   CSPFON             21.
    OAPNRFN   CTPSON       19.209991   CTP3ON       11.525999
    OAPNRFN   CTP2ON       11.525999   CTPFON       5.7629995
    OAPNRFN   CRPSON        57.62999   CRP3ON       34.577988
    OAPNRFN   CRP2ON       34.577988   CRPFON       17.288986
    OAPNRFN   CBPFON       768.39697   ..P.NI              1.
    OAPNR2N   OAP2P       -91.475998   OAP3P       -91.475998
    OAPNR2N   OAPSP       -91.475998   .OP2N               1.
    OAPNR2N   CEPSON       1.0499992   CEP3ON             .63
    OAPNR2N   CEP2ON            .315   CSP2ON             21.
    OAPNR2N   CTPSON       19.209991   CTP3ON       11.525999
    OAPNR2N   CTP2ON       5.7629995   CRPSON        57.62999
    OAPNR2N   CRP3ON       34.577988   CRP2ON       17.288986
    OAPNR2N   CBP2ON       768.39697   ..P.NI              1.
    OAPNR3N   OAP3P       -91.475998   OAPSP       -91.475998
    OAPNR3N   .OP3N               1.   CEPSON       1.0499992
    OAPNR3N   CEP3ON            .315   CSP3ON             21.
    OAPNR3N   CTPSON       19.209991   CTP3ON       5.7629995
    OAPNR3N   CRPSON        57.62999   CRP3ON       17.288986
    OAPNR3N   CBP3ON       768.39697   ..P.NI              1.
    OAPNRSN   OAPSP       -91.475998   .OPSN               1.
    OAPNRSN   CEPSON       .52499998   CSPSON             21.
    OAPNRSN   CTPSON       9.6049995   CRPSON       28.814987
    OAPNRSN   CBPSON       768.39697   ..P.NI              1.
    OAPNVFN   LVPFA               1.   OAPFP       -91.475998
    OAPNVFN   OAP2P       -91.475998   OAP3P       -91.475998
    OAPNVFN   OAPSP       -91.475998   LVPSN               1.
    OAPNVFN   CEPSON       1.0499992   CEP3ON             .63
    OAPNVFN   CEP2ON             .63   CEPFON            .315
    OAPNVFN   CSPFON             14.   CTPSON       19.209991
    OAPNVFN   CTP3ON       11.525999   CTP2ON       11.525999
    OAPNVFN   CTPFON       5.7629995   CRPSON        57.62999
    OAPNVFN   CRP3ON       34.577988   CRP2ON       34.577988
    OAPNVFN   CRPFON       17.288986   CBPFON       731.80688
    OAPNVFN   LVPSN2              1.
    OAPNV2N   LVP2A               1.   OAP2P       -91.475998
    OAPNV2N   OAP3P       -91.475998   OAPSP       -91.475998
    OAPNV2N   LVPSN               1.   CEPSON       1.0499992
    OAPNV2N   CEP3ON             .63   CEP2ON            .315
    OAPNV2N   CSP2ON             14.   CTPSON       19.209991
    OAPNV2N   CTP3ON       11.525999   CTP2ON       5.7629995
    OAPNV2N   CRPSON        57.62999   CRP3ON       34.577988
    OAPNV2N   CRP2ON       17.288986   CBP2ON       731.80688
    OAPNV2N   LVPSN2              1.
    OAPNV3N   LVP3A               1.   OAP3P       -91.475998
    OAPNV3N   OAPSP       -91.475998   LVPSN               1.
    OAPNV3N   CEPSON       1.0499992   CEP3ON            .315
    OAPNV3N   CSP3ON             14.   CTPSON       19.209991
    OAPNV3N   CTP3ON       5.7629995   CRPSON        57.62999
    OAPNV3N   CRP3ON       17.288986   CBP3ON       731.80688
    OAPNV3N   LVPSN2              1.
    OAPNVSN   LVPSA               1.   OAPSP       -91.475998
    OAPNVSN   LVPSN               1.   CEPSON       .52499998
    OAPNVSN   CSPSON             14.   CTPSON       9.6049995
    OAPNVSN   CRPSON       28.814987   CBPSON       731.80688
    OAPNVSN   LVPSN2              1.
    SAPSDFR   SAPFT              -1.   SAP2T              -1.
    SAPSDFR   SAP3T              -1.   SAPST              -1.
    SAPSDFR   SAPSR               1.   SAPFP        47.261993
    SAPSDFR   SAP2P        47.261993   SAP3P        47.261993
    SAPSDFR   SAPSP        47.261993   SAAFO1              1.
    SAPSDFR   SAA2O1              1.   SAA3O1              1.
    SAPSDFR   SAASO1              1.   CEPSSO       1.0499992
    SAPSDFR   CEP3SO             .63   CEP2SO             .63
    SAPSDFR   CEPFSO            .315   CTPSSO       7.4429998
    SAPSDFR   CTP3SO       4.4659996   CTP2SO       4.4659996
    SAPSDFR   CTPFSO       2.2329998   CRPSSO       22.329987
    SAPSDFR   CRP3SO          13.398   CRP2SO          13.398
    SAPSDFR   CRPFSO       6.6989994   CDPFSO       1.4519997
    SAPSD2R   SAP2T              -1.   SAP3T              -1.
    SAPSD2R   SAPST              -1.   SAPSR               1.
    SAPSD2R   SAP2P        47.261993   SAP3P        47.261993
    SAPSD2R   SAPSP        47.261993   SAA2O1              1.
    SAPSD2R   SAA3O1              1.   SAASO1              1.
    SAPSD2R   CEPSSO       1.0499992   CEP3SO             .63
    SAPSD2R   CEP2SO            .315   CTPSSO       7.4429998
    SAPSD2R   CTP3SO       4.4659996   CTP2SO       2.2329998
    SAPSD2R   CRPSSO       22.329987   CRP3SO          13.398
    SAPSD2R   CRP2SO       6.6989994   CDP2SO       1.4519997
    SAPSD3R   SAP3T              -1.   SAPST              -1.
    SAPSD3R   SAPSR               1.   SAP3P        47.261993
    SAPSD3R   SAPSP        47.261993   SAA3O1              1.
    SAPSD3R   SAASO1              1.   CEPSSO       1.0499992
    SAPSD3R   CEP3SO            .315   CTPSSO       7.4429998
    SAPSD3R   CTP3SO       2.2329998   CRPSSO       22.329987
    SAPSD3R   CRP3SO       6.6989994   CDP3SO       1.4519997
    SAPSDSR   SAPST              -1.   SAPSR               1.
    SAPSDSR   SAPSP        47.261993   SAASO1              1.
    SAPSDSR   CEPSSO       .52499998   CTPSSO       3.7219992
    SAPSDSR   CRPSSO       11.165999   CDPSSO       1.4519997
    SAPSDFN   SAPSN               1.   SAPFP        47.261993
    SAPSDFN   SAP2P        47.261993   SAP3P        47.261993
    SAPSDFN   SAPSP        47.261993   SAAFO1              1.
    SAPSDFN   SAA2O1              1.   SAA3O1              1.
    SAPSDFN   SAASO1              1.   S.PFN               1.
    SAPSDFN   CEPSSO       1.0499992   CEP3SO             .63
    SAPSDFN   CEP2SO             .63   CEPFSO            .315
    SAPSDFN   CTPSSO       7.4429998   CTP3SO       4.4659996
    SAPSDFN   CTP2SO       4.4659996   CTPFSO       2.2329998
    SAPSDFN   CRPSSO       22.329987   CRP3SO          13.398
    SAPSDFN   CRP2SO          13.398   CRPFSO       6.6989994
    SAPSDFN   CDPFSO       1.4519997   ..P.NE              1.
    SAPSD2N   SAPSN               1.   SAP2P        47.261993
    SAPSD2N   SAP3P        47.261993   SAPSP        47.261993
    SAPSD2N   SAA2O1              1.   SAA3O1              1.
    SAPSD2N   SAASO1              1.   S.P2N               1.
    SAPSD2N   CEPSSO       1.0499992   CEP3SO             .63
    SAPSD2N   CEP2SO            .315   CTPSSO       7.4429998
    SAPSD2N   CTP3SO       4.4659996   CTP2SO       2.2329998
    SAPSD2N   CRPSSO       22.329987   CRP3SO          13.398
    SAPSD2N   CRP2SO       6.6989994   CDP2SO       1.4519997
    SAPSD2N   ..P.NE              1.
    SAPSD3N   SAPSN               1.   SAP3P        47.261993
    SAPSD3N   SAPSP        47.261993   SAA3O1              1.
    SAPSD3N   SAASO1              1.   S.P3N               1.
    SAPSD3N   CEPSSO       1.0499992   CEP3SO            .315
    SAPSD3N   CTPSSO       7.4429998   CTP3SO       2.2329998
    SAPSD3N   CRPSSO       22.329987   CRP3SO       6.6989994
    SAPSD3N   CDP3SO       1.4519997   ..P.NE              1.
    SAPSDSN   SAPSN               1.   SAPSP        47.261993
    SAPSDSN   SAASO1              1.   S.PSN               1.
    SAPSDSN   CEPSSO       .52499998   CTPSSO       3.7219992
    SAPSDSN   CRPSSO       11.165999   CDPSSO       1.4519997
    SAPSDSN   ..P.NE              1.
    SAPNRFN   SAPFP       -65.339996   SAP2P       -65.339996
    SAPNRFN   SAP3P       -65.339996   SAPSP       -65.339996
    SAPNRFN   .SPFN               1.   CEPSSN       1.0499992
    SAPNRFN   CEP3SN             .63   CEP2SN             .63
    SAPNRFN   CEPFSN            .315   CSPFSN             21.
    SAPNRFN   CTPSSN       10.290999   CTP3SN       6.1749992
    SAPNRFN   CTP2SN       6.1749992   CTPFSN       3.0869999
    SAPNRFN   CRPSSN       30.872986   CRP3SN       18.523987
    SAPNRFN   CRP2SN       18.523987   CRPFSN       9.2619991
    SAPNRFN   CBPFSN       411.64087   ..P.NI              1.
    SAPNR2N   SAP2P       -65.339996   SAP3P       -65.339996
    SAPNR2N   SAPSP       -65.339996   .SP2N               1.
    SAPNR2N   CEPSSN       1.0499992   CEP3SN             .63
    SAPNR2N   CEP2SN            .315   CSP2SN             21.
    SAPNR2N   CTPSSN       10.290999   CTP3SN       6.1749992
    SAPNR2N   CTP2SN       3.0869999   CRPSSN       30.872986
    SAPNR2N   CRP3SN       18.523987   CRP2SN       9.2619991
    SAPNR2N   CBP2SN       411.64087   ..P.NI              1.
    SAPNR3N   SAP3P       -65.339996   SAPSP       -65.339996
    SAPNR3N   .SP3N               1.   CEPSSN       1.0499992
    SAPNR3N   CEP3SN            .315   CSP3SN             21.
    SAPNR3N   CTPSSN       10.290999   CTP3SN       3.0869999
    SAPNR3N   CRPSSN       30.872986   CRP3SN       9.2619991
    SAPNR3N   CBP3SN       411.64087   ..P.NI              1.
    SAPNRSN   SAPSP       -65.339996   .SPSN               1.
    SAPNRSN   CEPSSN       .52499998   CSPSSN             21.
    SAPNRSN   CTPSSN       5.1459999   CRPSSN       15.436999
    SAPNRSN   CBPSSN       411.64087   ..P.NI              1.
    SAPNVFN   LVPFA               1.   SAPFP       -65.339996
    SAPNVFN   SAP2P       -65.339996   SAP3P       -65.339996
    SAPNVFN   SAPSP       -65.339996   LVPSN               1.
    SAPNVFN   CEPSSN       1.0499992   CEP3SN             .63
    SAPNVFN   CEP2SN             .63   CEPFSN            .315
    SAPNVFN   CSPFSN             14.   CTPSSN       10.290999
    SAPNVFN   CTP3SN       6.1749992   CTP2SN       6.1749992
    SAPNVFN   CTPFSN       3.0869999   CRPSSN       30.872986
    SAPNVFN   CRP3SN       18.523987   CRP2SN       18.523987
    SAPNVFN   CRPFSN       9.2619991   CBPFSN       392.03882
    SAPNVFN   LVPSN2              1.
    SAPNV2N   LVP2A               1.   SAP2P       -65.339996
    SAPNV2N   SAP3P       -65.339996   SAPSP       -65.339996
    SAPNV2N   LVPSN               1.   CEPSSN       1.0499992
    SAPNV2N   CEP3SN             .63   CEP2SN            .315
    SAPNV2N   CSP2SN             14.   CTPSSN       10.290999
    SAPNV2N   CTP3SN       6.1749992   CTP2SN       3.0869999
    SAPNV2N   CRPSSN       30.872986   CRP3SN       18.523987
    SAPNV2N   CRP2SN       9.2619991   CBP2SN       392.03882
    SAPNV2N   LVPSN2              1.
    SAPNV3N   LVP3A               1.   SAP3P       -65.339996
    SAPNV3N   SAPSP       -65.339996   LVPSN               1.
    SAPNV3N   CEPSSN       1.0499992   CEP3SN            .315
    SAPNV3N   CSP3SN             14.   CTPSSN       10.290999
    SAPNV3N   CTP3SN       3.0869999   CRPSSN       30.872986
    SAPNV3N   CRP3SN       9.2619991   CBP3SN       392.03882
    SAPNV3N   LVPSN2              1.
    SAPNVSN   LVPSA               1.   SAPSP       -65.339996
    SAPNVSN   LVPSN               1.   CEPSSN       .52499998
    SAPNVSN   CSPSSN             14.   CTPSSN       5.1459999
    SAPNVSN   CRPSSN       15.436999   CBPSSN       392.03882
    SAPNVSN   LVPSN2              1.
    PAPSDFR   PAPFT              -1.   PAP2T              -1.
    PAPSDFR   PAP3T              -1.   PAPST              -1.
    PAPSDFR   PAPSR               1.   PAPFP               1.
    PAPSDFR   PAP2P               1.   PAP3P               1.
    PAPSDFR   PAPSP               1.   CTPSPO      .065999985
    PAPSDFR   CTP3PO      .038999997   CTP2PO      .038999997
    PAPSDFR   CTPFPO             .02   CRPSPO       .19699997
    PAPSDFR   CRP3PO       .11799997   CRP2PO       .11799997
    PAPSDFR   CRPFPO      .058999997
    PAPSD2R   PAP2T              -1.   PAP3T              -1.
    PAPSD2R   PAPST              -1.   PAPSR               1.
    PAPSD2R   PAP2P               1.   PAP3P               1.
    PAPSD2R   PAPSP               1.   CTPSPO      .065999985
    PAPSD2R   CTP3PO      .038999997   CTP2PO             .02
    PAPSD2R   CRPSPO       .19699997   CRP3PO       .11799997
    PAPSD2R   CRP2PO      .058999997
    PAPSD3R   PAP3T              -1.   PAPST              -1.
    PAPSD3R   PAPSR               1.   PAP3P               1.
    PAPSD3R   PAPSP               1.   CTPSPO      .065999985
    PAPSD3R   CTP3PO             .02   CRPSPO       .19699997
    PAPSD3R   CRP3PO      .058999997
    PAPSDSR   PAPST              -1.   PAPSR               1.
    PAPSDSR   PAPSP               1.   CTPSPO            .033
    PAPSDSR   CRPSPO       .09799999
    PAPSDFN   LVPFA              -1.   PAPSN               1.
    PAPSDFN   PAPFP               1.   PAP2P               1.
    PAPSDFN   PAP3P               1.   PAPSP               1.
    PAPSDFN   LVPSN              -1.   CTPSPO      .065999985
    PAPSDFN   CTP3PO      .038999997   CTP2PO      .038999997
    PAPSDFN   CTPFPO             .02   CRPSPO       .19699997
    PAPSDFN   CRP3PO       .11799997   CRP2PO       .11799997
    PAPSDFN   CRPFPO      .058999997   LVPSN2             -1.
    PAPSD2N   LVP2A              -1.   PAPSN               1.
    PAPSD2N   PAP2P               1.   PAP3P               1.
    PAPSD2N   PAPSP               1.   LVPSN              -1.
    PAPSD2N   CTPSPO      .065999985   CTP3PO      .038999997
    PAPSD2N   CTP2PO             .02   CRPSPO       .19699997
    PAPSD2N   CRP3PO       .11799997   CRP2PO      .058999997
    PAPSD2N   LVPSN2             -1.
    PAPSD3N   LVP3A              -1.   PAPSN               1.
    PAPSD3N   PAP3P               1.   PAPSP               1.
    PAPSD3N   LVPSN              -1.   CTPSPO      .065999985
    PAPSD3N   CTP3PO             .02   CRPSPO       .19699997
    PAPSD3N   CRP3PO      .058999997   LVPSN2             -1.
    PAPSDSN   LVPSA              -1.   PAPSN               1.
    PAPSDSN   PAPSP               1.   LVPSN              -1.
    PAPSDSN   CTPSPO            .033   CRPSPO       .09799999
    PAPSDSN   LVPSN2             -1.
    PAPNRFN   PAPFP              -1.   PAP2P              -1.
    PAPNRFN   PAP3P              -1.   PAPSP              -1.
    PAPNRFN   .PPFN               1.   CTPSPN      .065999985
    PAPNRFN   CTP3PN      .038999997   CTP2PN      .038999997
    PAPNRFN   CTPFPN             .02   CRPSPN       .19699997
    PAPNRFN   CRP3PN       .11799997   CRP2PN       .11799997
    PAPNRFN   CRPFPN      .058999997   CBPFPN           2.625
    PAPNRFN   ..P.NI              1.
    PAPNR2N   PAP2P              -1.   PAP3P              -1.
    PAPNR2N   PAPSP              -1.   .PP2N               1.
    PAPNR2N   CTPSPN      .065999985   CTP3PN      .038999997
    PAPNR2N   CTP2PN             .02   CRPSPN       .19699997
    PAPNR2N   CRP3PN       .11799997   CRP2PN      .058999997
    PAPNR2N   CBP2PN           2.625   ..P.NI              1.
    PAPNR3N   PAP3P              -1.   PAPSP              -1.
    PAPNR3N   .PP3N               1.   CTPSPN      .065999985
    PAPNR3N   CTP3PN             .02   CRPSPN       .19699997
    PAPNR3N   CRP3PN      .058999997   CBP3PN           2.625
    PAPNR3N   ..P.NI              1.
    PAPNRSN   PAPSP              -1.   .PPSN               1.
    PAPNRSN   CTPSPN            .033   CRPSPN       .09799999
    PAPNRSN   CBPSPN           2.625   ..P.NI              1.
    PAPNVFN   LVPFA               1.   PAPFP              -1.
    PAPNVFN   PAP2P              -1.   PAP3P              -1.
    PAPNVFN   PAPSP              -1.   LVPSN               1.
    PAPNVFN   CTPSPN      .065999985   CTP3PN      .038999997
    PAPNVFN   CTP2PN      .038999997   CTPFPN             .02
    PAPNVFN   CRPSPN       .19699997   CRP3PN       .11799997
    PAPNVFN   CRP2PN       .11799997   CRPFPN      .058999997
    PAPNVFN   CBPFPN             2.5   LVPSN2              1.
    PAPNV2N   LVP2A               1.   PAP2P              -1.
    PAPNV2N   PAP3P              -1.   PAPSP              -1.
    PAPNV2N   LVPSN               1.   CTPSPN      .065999985
    PAPNV2N   CTP3PN      .038999997   CTP2PN             .02
    PAPNV2N   CRPSPN       .19699997   CRP3PN       .11799997
    PAPNV2N   CRP2PN      .058999997   CBP2PN             2.5
    PAPNV2N   LVPSN2              1.
    PAPNV3N   LVP3A               1.   PAP3P              -1.
    PAPNV3N   PAPSP              -1.   LVPSN               1.
    PAPNV3N   CTPSPN      .065999985   CTP3PN             .02
    PAPNV3N   CRPSPN       .19699997   CRP3PN      .058999997
    PAPNV3N   CBP3PN             2.5   LVPSN2              1.
    PAPNVSN   LVPSA               1.   PAPSP              -1.
    PAPNVSN   LVPSN               1.   CTPSPN            .033
    PAPNVSN   CRPSPN       .09799999   CBPSPN             2.5
    PAPNVSN   LVPSN2              1.
    EPPIDFR   EPPFT              -1.   EPP2T              -1.
    EPPIDFR   EPP3T              -1.   EPPST              -1.
    EPPIDFR   EPPSR               1.   EPPFP        .19099998
    EPPIDFR   EPP2P        .19099998   EPP3P        .19099998
    EPPIDFR   EPPSP        .19099998   EPAFO1              1.
    EPPIDFR   EPA2O1              1.   EPA3O1              1.
    EPPIDFR   EPASO1              1.   CEPSEO      .074999988
    EPPIDFR   CEP3EO      .044999998   CEP2EO      .044999998
    EPPIDFR   CEPFEO            .022   CTPSEO       1.7459993
    EPPIDFR   CTP3EO       1.0469999   CTP2EO       1.0469999
    EPPIDFR   CTPFEO       .52399999   CRPSEO       5.2369995
    EPPIDFR   CRP3EO       3.1419992   CRP2EO       3.1419992
    EPPIDFR   CRPFEO       1.5709991   CDPFEO       .72599995
    EPPID2R   EPP2T              -1.   EPP3T              -1.
    EPPID2R   EPPST              -1.   EPPSR               1.
    EPPID2R   EPP2P        .19099998   EPP3P        .19099998
    EPPID2R   EPPSP        .19099998   EPA2O1              1.
    EPPID2R   EPA3O1              1.   EPASO1              1.
    EPPID2R   CEPSEO      .074999988   CEP3EO      .044999998
    EPPID2R   CEP2EO            .022   CTPSEO       1.7459993
    EPPID2R   CTP3EO       1.0469999   CTP2EO       .52399999
    EPPID2R   CRPSEO       5.2369995   CRP3EO       3.1419992
    EPPID2R   CRP2EO       1.5709991   CDP2EO       .72599995
    EPPID3R   EPP3T              -1.   EPPST              -1.
    EPPID3R   EPPSR               1.   EPP3P        .19099998
    EPPID3R   EPPSP        .19099998   EPA3O1              1.
    EPPID3R   EPASO1              1.   CEPSEO      .074999988
    EPPID3R   CEP3EO            .022   CTPSEO       1.7459993
    EPPID3R   CTP3EO       .52399999   CRPSEO       5.2369995
    EPPID3R   CRP3EO       1.5709991   CDP3EO       .72599995
    EPPIDSR   EPPST              -1.   EPPSR               1.
    EPPIDSR   EPPSP        .19099998   EPASO1              1.
    EPPIDSR   CEPSEO      .036999997   CTPSEO       .87299997
    EPPIDSR   CRPSEO       2.6179991   CDPSEO       .72599995
    EPPIIFR   EPPSR               1.   EPAFO1              1.
    EPPIIFR   EPA2O1              1.   EPA3O1              1.
    EPPIIFR   EPASO1              1.   CIPFEO       30.969986
    EPPII2R   EPPSR               1.   EPA2O1              1.
    EPPII2R   EPA3O1              1.   EPASO1              1.
    EPPII2R   CIP2EO       30.969986
    EPPII3R   EPPSR               1.   EPA3O1              1.
    EPPII3R   EPASO1              1.   CIP3EO       30.969986
    EPPIISR   EPPSR               1.   EPASO1              1.
    EPPIISR   CIPSEO       30.969986
    EPPIDFN   EPPSN               1.   EPPFP        .19099998
    EPPIDFN   EPP2P        .19099998   EPP3P        .19099998
    EPPIDFN   EPPSP        .19099998   EPAFO1              1.
    EPPIDFN   EPA2O1              1.   EPA3O1              1.
    EPPIDFN   EPASO1              1.   E.PFN               1.
    EPPIDFN   CEPSEO      .074999988   CEP3EO      .044999998
    EPPIDFN   CEP2EO      .044999998   CEPFEO            .022
    EPPIDFN   CTPSEO       1.7459993   CTP3EO       1.0469999
    EPPIDFN   CTP2EO       1.0469999   CTPFEO       .52399999
    EPPIDFN   CRPSEO       5.2369995   CRP3EO       3.1419992
    EPPIDFN   CRP2EO       3.1419992   CRPFEO       1.5709991
    EPPIDFN   CDPFEO       .72599995   ..P.NE              1.
    EPPID2N   EPPSN               1.   EPP2P        .19099998
    EPPID2N   EPP3P        .19099998   EPPSP        .19099998
    EPPID2N   EPA2O1              1.   EPA3O1              1.
    EPPID2N   EPASO1              1.   E.P2N               1.
    EPPID2N   CEPSEO      .074999988   CEP3EO      .044999998
    EPPID2N   CEP2EO            .022   CTPSEO       1.7459993
    EPPID2N   CTP3EO       1.0469999   CTP2EO       .52399999
    EPPID2N   CRPSEO       5.2369995   CRP3EO       3.1419992
    EPPID2N   CRP2EO       1.5709991   CDP2EO       .72599995
    EPPID2N   ..P.NE              1.
    EPPID3N   EPPSN               1.   EPP3P        .19099998
    EPPID3N   EPPSP        .19099998   EPA3O1              1.
    EPPID3N   EPASO1              1.   E.P3N               1.
    EPPID3N   CEPSEO      .074999988   CEP3EO            .022
    EPPID3N   CTPSEO       1.7459993   CTP3EO       .52399999
    EPPID3N   CRPSEO       5.2369995   CRP3EO       1.5709991
    EPPID3N   CDP3EO       .72599995   ..P.NE              1.
    EPPIDSN   EPPSN               1.   EPPSP        .19099998
    EPPIDSN   EPASO1              1.   E.PSN               1.
    EPPIDSN   CEPSEO      .036999997   CTPSEO       .87299997
    EPPIDSN   CRPSEO       2.6179991   CDPSEO       .72599995
    EPPIDSN   ..P.NE              1.
    EPPIIFN   EPPSN               1.   EPAFO1              1.
    EPPIIFN   EPA2O1              1.   EPA3O1              1.
    EPPIIFN   EPASO1              1.   CIPFEO       30.969986
    EPPII2N   EPPSN               1.   EPA2O1              1.
    EPPII2N   EPA3O1              1.   EPASO1              1.
    EPPII2N   CIP2EO       30.969986
    EPPII3N   EPPSN               1.   EPA3O1              1.
    EPPII3N   EPASO1              1.   CIP3EO       30.969986
    EPPIISN   EPPSN               1.   EPASO1              1.
    EPPIISN   CIPSEO       30.969986
    EPPNRFN   EPPFP             -.19   EPP2P             -.19
    EPPNRFN   EPP3P             -.19   EPPSP             -.19
    EPPNRFN   .EPFN               1.   CEPSEN      .074999988
    EPPNRFN   CEP3EN      .044999998   CEP2EN      .044999998
    EPPNRFN   CEPFEN            .022   CSPFEN              3.
    EPPNRFN   CTPSEN       1.7459993   CTP3EN       1.0469999
    EPPNRFN   CTP2EN       1.0469999   CTPFEN       .52399999
    EPPNRFN   CRPSEN       5.2369995   CRP3EN       3.1419992
    EPPNRFN   CRP2EN       3.1419992   CRPFEN       1.5709991
    EPPNRFN   CBPFEN       69.824997   ..P.NI              1.
    EPPNR2N   EPP2P             -.19   EPP3P             -.19
    EPPNR2N   EPPSP             -.19   .EP2N               1.
    EPPNR2N   CEPSEN      .074999988   CEP3EN      .044999998
    EPPNR2N   CEP2EN            .022   CSP2EN              3.
    EPPNR2N   CTPSEN       1.7459993   CTP3EN       1.0469999
    EPPNR2N   CTP2EN       .52399999   CRPSEN       5.2369995
    EPPNR2N   CRP3EN       3.1419992   CRP2EN       1.5709991
    EPPNR2N   CBP2EN       69.824997   ..P.NI              1.
    EPPNR3N   EPP3P             -.19   EPPSP             -.19
    EPPNR3N   .EP3N               1.   CEPSEN      .074999988
    EPPNR3N   CEP3EN            .022   CSP3EN              3.
    EPPNR3N   CTPSEN       1.7459993   CTP3EN       .52399999
    EPPNR3N   CRPSEN       5.2369995   CRP3EN       1.5709991
    EPPNR3N   CBP3EN       69.824997   ..P.NI              1.
    EPPNRSN   EPPSP             -.19   .EPSN               1.
    EPPNRSN   CEPSEN      .036999997   CSPSEN              3.
    EPPNRSN   CTPSEN       .87299997   CRPSEN       2.6179991
    EPPNRSN   CBPSEN       69.824997   ..P.NI              1.
    EPPNVFN   LVPFA               1.   EPPFP             -.19
    EPPNVFN   EPP2P             -.19   EPP3P             -.19
    EPPNVFN   EPPSP             -.19   LVPSN               1.
    EPPNVFN   CEPSEN      .074999988   CEP3EN      .044999998
    EPPNVFN   CEP2EN      .044999998   CEPFEN            .022
    EPPNVFN   CSPFEN              2.   CTPSEN       1.7459993
    EPPNVFN   CTP3EN       1.0469999   CTP2EN       1.0469999
    EPPNVFN   CTPFEN       .52399999   CRPSEN       5.2369995
    EPPNVFN   CRP3EN       3.1419992   CRP2EN       3.1419992
    EPPNVFN   CRPFEN       1.5709991   CBPFEN            66.5
    EPPNVFN   LVPSN2              1.
    EPPNV2N   LVP2A               1.   EPP2P             -.19
    EPPNV2N   EPP3P             -.19   EPPSP             -.19
    EPPNV2N   LVPSN               1.   CEPSEN      .074999988
    EPPNV2N   CEP3EN      .044999998   CEP2EN            .022
    EPPNV2N   CSP2EN              2.   CTPSEN       1.7459993
    EPPNV2N   CTP3EN       1.0469999   CTP2EN       .52399999
    EPPNV2N   CRPSEN       5.2369995   CRP3EN       3.1419992
    EPPNV2N   CRP2EN       1.5709991   CBP2EN            66.5
    EPPNV2N   LVPSN2              1.
    EPPNV3N   LVP3A               1.   EPP3P             -.19
    EPPNV3N   EPPSP             -.19   LVPSN               1.
    EPPNV3N   CEPSEN      .074999988   CEP3EN            .022
    EPPNV3N   CSP3EN              2.   CTPSEN       1.7459993
    EPPNV3N   CTP3EN       .52399999   CRPSEN       5.2369995
    EPPNV3N   CRP3EN       1.5709991   CBP3EN            66.5
    EPPNV3N   LVPSN2              1.
    EPPNVSN   LVPSA               1.   EPPSP             -.19
    EPPNVSN   LVPSN               1.   CEPSEN      .036999997
    EPPNVSN   CSPSEN              2.   CTPSEN       .87299997
    EPPNVSN   CRPSEN       2.6179991   CBPSEN            66.5
    EPPNVSN   LVPSN2              1.
    ESPIDFR   ESPFT              -1.   ESP2T              -1.
    ESPIDFR   ESP3T              -1.   ESPST              -1.
    ESPIDFR   ESPSR               1.   ESPFP       .092999995
    ESPIDFR   ESP2P       .092999995   ESP3P       .092999995
    ESPIDFR   ESPSP       .092999995   ESAFO1              1.
    ESPIDFR   ESA2O1              1.   ESA3O1              1.
    ESPIDFR   ESASO1              1.   CEPSEO      .074999988
    ESPIDFR   CEP3EO      .044999998   CEP2EO      .044999998
    ESPIDFR   CEPFEO            .022   CTPSEO       1.1659994
    ESPIDFR   CTP3EO       .69899994   CTP2EO       .69899994
    ESPIDFR   CTPFEO       .34999996   CRPSEO       3.4989996
    ESPIDFR   CRP3EO           2.099   CRP2EO           2.099
    ESPIDFR   CRPFEO       1.0499992   CDPFEO       .72599995
    ESPID2R   ESP2T              -1.   ESP3T              -1.
    ESPID2R   ESPST              -1.   ESPSR               1.
    ESPID2R   ESP2P       .092999995   ESP3P       .092999995
    ESPID2R   ESPSP       .092999995   ESA2O1              1.
    ESPID2R   ESA3O1              1.   ESASO1              1.
    ESPID2R   CEPSEO      .074999988   CEP3EO      .044999998
    ESPID2R   CEP2EO            .022   CTPSEO       1.1659994
    ESPID2R   CTP3EO       .69899994   CTP2EO       .34999996
    ESPID2R   CRPSEO       3.4989996   CRP3EO           2.099
    ESPID2R   CRP2EO       1.0499992   CDP2EO       .72599995
    ESPID3R   ESP3T              -1.   ESPST              -1.
    ESPID3R   ESPSR               1.   ESP3P       .092999995
    ESPID3R   ESPSP       .092999995   ESA3O1              1.
    ESPID3R   ESASO1              1.   CEPSEO      .074999988
    ESPID3R   CEP3EO            .022   CTPSEO       1.1659994
    ESPID3R   CTP3EO       .34999996   CRPSEO       3.4989996
    ESPID3R   CRP3EO       1.0499992   CDP3EO       .72599995
    ESPIDSR   ESPST              -1.   ESPSR               1.
    ESPIDSR   ESPSP       .092999995   ESASO1              1.
    ESPIDSR   CEPSEO      .036999997   CTPSEO       .58299994
    ESPIDSR   CRPSEO            1.75   CDPSEO       .72599995
    ESPIIFR   ESPSR               1.   ESAFO1              1.
    ESPIIFR   ESA2O1              1.   ESA3O1              1.
    ESPIIFR   ESASO1              1.   CIPFEO       26.381989
    ESPII2R   ESPSR               1.   ESA2O1              1.
    ESPII2R   ESA3O1              1.   ESASO1              1.
    ESPII2R   CIP2EO       26.381989
    ESPII3R   ESPSR               1.   ESA3O1              1.
    ESPII3R   ESASO1              1.   CIP3EO       26.381989
    ESPIISR   ESPSR               1.   ESASO1              1.
    ESPIISR   CIPSEO       26.381989
    ESPIDFN   ESPSN               1.   ESPFP       .092999995
    ESPIDFN   ESP2P       .092999995   ESP3P       .092999995
    ESPIDFN   ESPSP       .092999995   ESAFO1              1.
    ESPIDFN   ESA2O1              1.   ESA3O1              1.
    ESPIDFN   ESASO1              1.   E.PFN               1.
    ESPIDFN   CEPSEO      .074999988   CEP3EO      .044999998
    ESPIDFN   CEP2EO      .044999998   CEPFEO            .022
    ESPIDFN   CTPSEO       1.1659994   CTP3EO       .69899994
    ESPIDFN   CTP2EO       .69899994   CTPFEO       .34999996
    ESPIDFN   CRPSEO       3.4989996   CRP3EO           2.099
    ESPIDFN   CRP2EO           2.099   CRPFEO       1.0499992
    ESPIDFN   CDPFEO       .72599995   ..P.NE              1.
    ESPID2N   ESPSN               1.   ESP2P       .092999995
    ESPID2N   ESP3P       .092999995   ESPSP       .092999995
    ESPID2N   ESA2O1              1.   ESA3O1              1.
    ESPID2N   ESASO1              1.   E.P2N               1.
    ESPID2N   CEPSEO      .074999988   CEP3EO      .044999998
    ESPID2N   CEP2EO            .022   CTPSEO       1.1659994
    ESPID2N   CTP3EO       .69899994   CTP2EO       .34999996
    ESPID2N   CRPSEO       3.4989996   CRP3EO           2.099
    ESPID2N   CRP2EO       1.0499992   CDP2EO       .72599995
    ESPID2N   ..P.NE              1.
    ESPID3N   ESPSN               1.   ESP3P       .092999995
    ESPID3N   ESPSP       .092999995   ESA3O1              1.
    ESPID3N   ESASO1              1.   E.P3N               1.
    ESPID3N   CEPSEO      .074999988   CEP3EO            .022
    ESPID3N   CTPSEO       1.1659994   CTP3EO       .34999996
    ESPID3N   CRPSEO       3.4989996   CRP3EO       1.0499992
    ESPID3N   CDP3EO       .72599995   ..P.NE              1.
    ESPIDSN   ESPSN               1.   ESPSP       .092999995
    ESPIDSN   ESASO1              1.   E.PSN               1.
    ESPIDSN   CEPSEO      .036999997   CTPSEO       .58299994
    ESPIDSN   CRPSEO            1.75   CDPSEO       .72599995
    ESPIDSN   ..P.NE              1.
    ESPIIFN   ESPSN               1.   ESAFO1              1.
    ESPIIFN   ESA2O1              1.   ESA3O1              1.
    ESPIIFN   ESASO1              1.   CIPFEO       26.381989
    ESPII2N   ESPSN               1.   ESA2O1              1.
    ESPII2N   ESA3O1              1.   ESASO1              1.
    ESPII2N   CIP2EO       26.381989
    ESPII3N   ESPSN               1.   ESA3O1              1.
    ESPII3N   ESASO1              1.   CIP3EO       26.381989
    ESPIISN   ESPSN               1.   ESASO1              1.
    ESPIISN   CIPSEO       26.381989
    ESPNRFN   ESPFP       -.13299996   ESP2P       -.13299996
    ESPNRFN   ESP3P       -.13299996   ESPSP       -.13299996
    ESPNRFN   .EPFN               1.   CEPSEN      .074999988
    ESPNRFN   CEP3EN      .044999998   CEP2EN      .044999998
    ESPNRFN   CEPFEN            .022   CSPFEN              3.
    ESPNRFN   CTPSEN       1.6759996   CTP3EN       1.0049992
    ESPNRFN   CTP2EN       1.0049992   CTPFEN       .50299996
    ESPNRFN   CRPSEN       5.0269995   CRP3EN       3.0159998
    ESPNRFN   CRP2EN       3.0159998   CRPFEN       1.5079994
    ESPNRFN   CBPFEN       67.031998   ..P.NI              1.
    ESPNR2N   ESP2P       -.13299996   ESP3P       -.13299996
    ESPNR2N   ESPSP       -.13299996   .EP2N               1.
    ESPNR2N   CEPSEN      .074999988   CEP3EN      .044999998
    ESPNR2N   CEP2EN            .022   CSP2EN              3.
    ESPNR2N   CTPSEN       1.6759996   CTP3EN       1.0049992
    ESPNR2N   CTP2EN       .50299996   CRPSEN       5.0269995
    ESPNR2N   CRP3EN       3.0159998   CRP2EN       1.5079994
    ESPNR2N   CBP2EN       67.031998   ..P.NI              1.
    ESPNR3N   ESP3P       -.13299996   ESPSP       -.13299996
    ESPNR3N   .EP3N               1.   CEPSEN      .074999988
    ESPNR3N   CEP3EN            .022   CSP3EN              3.
    ESPNR3N   CTPSEN       1.6759996   CTP3EN       .50299996
    ESPNR3N   CRPSEN       5.0269995   CRP3EN       1.5079994
    ESPNR3N   CBP3EN       67.031998   ..P.NI              1.
    ESPNRSN   ESPSP       -.13299996   .EPSN               1.
    ESPNRSN   CEPSEN      .036999997   CSPSEN              3.
    ESPNRSN   CTPSEN            .838   CRPSEN       2.5139999
    ESPNRSN   CBPSEN       67.031998   ..P.NI              1.
    ESPNVFN   LVPFA               1.   ESPFP       -.13299996
    ESPNVFN   ESP2P       -.13299996   ESP3P       -.13299996
    ESPNVFN   ESPSP       -.13299996   LVPSN               1.
    ESPNVFN   CEPSEN      .074999988   CEP3EN      .044999998
    ESPNVFN   CEP2EN      .044999998   CEPFEN            .022
    ESPNVFN   CSPFEN              2.   CTPSEN       1.6759996
    ESPNVFN   CTP3EN       1.0049992   CTP2EN       1.0049992
    ESPNVFN   CTPFEN       .50299996   CRPSEN       5.0269995
    ESPNVFN   CRP3EN       3.0159998   CRP2EN       3.0159998
    ESPNVFN   CRPFEN       1.5079994   CBPFEN       63.839996
    ESPNVFN   LVPSN2              1.
    ESPNV2N   LVP2A               1.   ESP2P       -.13299996
    ESPNV2N   ESP3P       -.13299996   ESPSP       -.13299996
    ESPNV2N   LVPSN               1.   CEPSEN      .074999988
    ESPNV2N   CEP3EN      .044999998   CEP2EN            .022
    ESPNV2N   CSP2EN              2.   CTPSEN       1.6759996
    ESPNV2N   CTP3EN       1.0049992   CTP2EN       .50299996
    ESPNV2N   CRPSEN       5.0269995   CRP3EN       3.0159998
    ESPNV2N   CRP2EN       1.5079994   CBP2EN       63.839996
    ESPNV2N   LVPSN2              1.
    ESPNV3N   LVP3A               1.   ESP3P       -.13299996
    ESPNV3N   ESPSP       -.13299996   LVPSN               1.
    ESPNV3N   CEPSEN      .074999988   CEP3EN            .022
    ESPNV3N   CSP3EN              2.   CTPSEN       1.6759996
    ESPNV3N   CTP3EN       .50299996   CRPSEN       5.0269995
    ESPNV3N   CRP3EN       1.5079994   CBP3EN       63.839996
    ESPNV3N   LVPSN2              1.
    ESPNVSN   LVPSA               1.   ESPSP       -.13299996
    ESPNVSN   LVPSN               1.   CEPSEN      .036999997
    ESPNVSN   CSPSEN              2.   CTPSEN            .838
    ESPNVSN   CRPSEN       2.5139999   CBPSEN       63.839996
    ESPNVSN   LVPSN2              1.
    HVPSDFN   HVPSN               1.   H.PFN               1.
    HVPSDFN   ..P.NE              1.   YP.ACRE             1.
    HVPSDFN   YP.DWLG.     4.4039993   CRPSHO      -.95899999
    HVPSDFN   CRP3HO      -.57599998   CRP2HO      -.57599998
    HVPSDFN   CRPFHO      -.28799999   CDPFHO       .13299996
    HVPSDFN   YP.DWLS8     .47199994   YP.DWL38     .47199994
    HVPSDFN   YP.DWL28     .47199994   YP.DWLF8     .47199994
    HVPSDFN   YP.DWLS7     .23599994   YP.DWL37     .23599994
    HVPSDFN   YP.DWL27     .23599994   YP.DWLF7     .23599994
    HVPSDFN   YP.DWLS6     1.9659996   YP.DWL36     1.9659996
    HVPSDFN   YP.DWL26     1.9659996   YP.DWLF6     1.9659996
    HVPSDFN   YP.DWLS5     .54999995   YP.DWL35     .54999995
    HVPSDFN   YP.DWL25     .54999995   YP.DWLF5     .54999995
    HVPSDFN   YP.DWLS4     1.1799994   YP.DWL34     1.1799994
    HVPSDFN   YP.DWL24     1.1799994   YP.DWLF4     1.1799994
    HVPSD2N   HVPSN               1.   H.P2N               1.
    HVPSD2N   ..P.NE              1.   YP.ACRE             1.
    HVPSD2N   YP.DWLG.     4.4039993   CRPSHO      -.95899999
    HVPSD2N   CRP3HO      -.57599998   CRP2HO      -.28799999
    HVPSD2N   CDP2HO       .13299996   YP.DWLS8     .47199994
    HVPSD2N   YP.DWL38     .47199994   YP.DWL28     .47199994
    HVPSD2N   YP.DWLS7     .23599994   YP.DWL37     .23599994
    HVPSD2N   YP.DWL27     .23599994   YP.DWLS6     1.9659996
    HVPSD2N   YP.DWL36     1.9659996   YP.DWL26     1.9659996
    HVPSD2N   YP.DWLS5     .54999995   YP.DWL35     .54999995
    HVPSD2N   YP.DWL25     .54999995   YP.DWLS4     1.1799994
    HVPSD2N   YP.DWL34     1.1799994   YP.DWL24     1.1799994
    HVPSD3N   HVPSN               1.   H.P3N               1.
    HVPSD3N   ..P.NE              1.   YP.ACRE             1.
    HVPSD3N   YP.DWLG.     4.4039993   CRPSHO      -.95899999
    HVPSD3N   CRP3HO      -.28799999   CDP3HO       .13299996
    HVPSD3N   YP.DWLS8     .47199994   YP.DWL38     .47199994
    HVPSD3N   YP.DWLS7     .23599994   YP.DWL37     .23599994
    HVPSD3N   YP.DWLS6     1.9659996   YP.DWL36     1.9659996
    HVPSD3N   YP.DWLS5     .54999995   YP.DWL35     .54999995
    HVPSD3N   YP.DWLS4     1.1799994   YP.DWL34     1.1799994
    HVPSDSN   HVPSN               1.   H.PSN               1.
    HVPSDSN   ..P.NE              1.   YP.ACRE             1.
    HVPSDSN   YP.DWLG.     4.4039993   CRPSHO      -.47999996
    HVPSDSN   CDPSHO       .13299996   YP.DWLS8     .47199994
    HVPSDSN   YP.DWLS7     .23599994   YP.DWLS6     1.9659996
    HVPSDSN   YP.DWLS5     .54999995   YP.DWLS4     1.1799994
    HWPSDFN   HWPSN               1.   H.PFN               1.
    HWPSDFN   ..P.NE              1.   YP.ACRE             1.
    HWPSDFN   YP.DWLG.     8.0669994   CRPSHO      -1.7099991
    HWPSDFN   CRP3HO      -1.0179996   CRP2HO      -1.0119991
    HWPSDFN   CRPFHO      -.50299996   CDPFHO       .24399996
    HWPSDFN   YP.DWLS8     .17099994   YP.DWL38     .17099994
    HWPSDFN   YP.DWL28     .17099994   YP.DWLF8     .17099994
    HWPSDFN   YP.DWLS7     .70099998   YP.DWL37     .70099998
    HWPSDFN   YP.DWL27     .70099998   YP.DWLF7     .70099998
    HWPSDFN   YP.DWLS6     4.1889992   YP.DWL36     4.1889992
    HWPSDFN   YP.DWL26     4.1889992   YP.DWLF6     4.1889992
    HWPSDFN   YP.DWLS5     1.5089998   YP.DWL35     1.5089998
    HWPSDFN   YP.DWL25     1.5089998   YP.DWLF5     1.5089998
    HWPSDFN   YP.DWLS4     1.3269997   YP.DWL34     1.3269997
    HWPSDFN   YP.DWL24     1.3269997   YP.DWLF4     1.3269997
    HWPSDFN   YP.DWLS3     .14399999   YP.DWL33     .14399999
    HWPSDFN   YP.DWL23     .14399999   YP.DWLF3     .14399999
    HWPSDFN   YP.DWLS2   .0079999976   YP.DWL32   .0079999976
    HWPSDFN   YP.DWL22   .0079999976   YP.DWLF2   .0079999976
    HWPSDFN   YP.DWLS1    .016999997   YP.DWL31    .016999997
    HWPSDFN   YP.DWL21    .016999997   YP.DWLF1    .016999997
    HWPSD2N   HWPSN               1.   H.P2N               1.
    HWPSD2N   ..P.NE              1.   YP.ACRE             1.
    HWPSD2N   YP.DWLG.     8.0669994   CRPSHO      -1.7099991
    HWPSD2N   CRP3HO      -1.0179996   CRP2HO      -.50599998
    HWPSD2N   CDP2HO       .24399996   YP.DWLS8     .17099994
    HWPSD2N   YP.DWL38     .17099994   YP.DWL28     .17099994
    HWPSD2N   YP.DWLS7     .70099998   YP.DWL37     .70099998
    HWPSD2N   YP.DWL27     .70099998   YP.DWLS6     4.1889992
    HWPSD2N   YP.DWL36     4.1889992   YP.DWL26     4.1889992
    HWPSD2N   YP.DWLS5     1.5089998   YP.DWL35     1.5089998
    HWPSD2N   YP.DWL25     1.5089998   YP.DWLS4     1.3269997
    HWPSD2N   YP.DWL34     1.3269997   YP.DWL24     1.3269997
    HWPSD2N   YP.DWLS3     .14399999   YP.DWL33     .14399999
    HWPSD2N   YP.DWL23     .14399999   YP.DWLS2   .0079999976
    HWPSD2N   YP.DWL32   .0079999976   YP.DWL22   .0079999976
    HWPSD2N   YP.DWLS1    .016999997   YP.DWL31    .016999997
    HWPSD2N   YP.DWL21    .016999997
    HWPSD3N   HWPSN               1.   H.P3N               1.
    HWPSD3N   ..P.NE              1.   YP.ACRE             1.
    HWPSD3N   YP.DWLG.     8.0669994   CRPSHO      -1.7099991
    HWPSD3N   CRP3HO      -.50899994   CDP3HO       .24399996
    HWPSD3N   YP.DWLS8     .17099994   YP.DWL38     .17099994
    HWPSD3N   YP.DWLS7     .70099998   YP.DWL37     .70099998
    HWPSD3N   YP.DWLS6     4.1889992   YP.DWL36     4.1889992
    HWPSD3N   YP.DWLS5     1.5089998   YP.DWL35     1.5089998
    HWPSD3N   YP.DWLS4     1.3269997   YP.DWL34     1.3269997
    HWPSD3N   YP.DWLS3     .14399999   YP.DWL33     .14399999
    HWPSD3N   YP.DWLS2   .0079999976   YP.DWL32   .0079999976
    HWPSD3N   YP.DWLS1    .016999997   YP.DWL31    .016999997
    HWPSDSN   HWPSN               1.   H.PSN               1.
    HWPSDSN   ..P.NE              1.   YP.ACRE             1.
    HWPSDSN   YP.DWLG.     8.0669994   CRPSHO      -.85499996
    HWPSDSN   CDPSHO       .24399996   YP.DWLS8     .17099994
    HWPSDSN   YP.DWLS7     .70099998   YP.DWLS6     4.1889992
    HWPSDSN   YP.DWLS5     1.5089998   YP.DWLS4     1.3269997
    HWPSDSN   YP.DWLS3     .14399999   YP.DWLS2   .0079999976
    HWPSDSN   YP.DWLS1    .016999997
    H7PDDFR   H7PFT              -1.   H7PSR               1.
    H7PDDFR   YP.ACRE             1.   YP.DWLG.     18.871994
    H7PDDFR   CRPSHO      -3.8839998   CRP3HO      -2.2919998
    H7PDDFR   CRP2HO      -2.2629995   CRPFHO      -1.1169996
    H7PDDFR   CDPFHO       .57099998   YP.DWLS8     .98699999
    H7PDDFR   YP.DWL38     .98699999   YP.DWL28     .98699999
    H7PDDFR   YP.DWLF8     .98699999   YP.DWLS7     1.0489998
    H7PDDFR   YP.DWL37     1.0489998   YP.DWL27     1.0489998
    H7PDDFR   YP.DWLF7     1.0489998   YP.DWLS6     2.3659992
    H7PDDFR   YP.DWL36     2.3659992   YP.DWL26     2.3659992
    H7PDDFR   YP.DWLF6     2.3659992   YP.DWLS5     3.4589996
    H7PDDFR   YP.DWL35     3.4589996   YP.DWL25     3.4589996
    H7PDDFR   YP.DWLF5     3.4589996   YP.DWLS4     9.7559996
    H7PDDFR   YP.DWL34     9.7559996   YP.DWL24     9.7559996
    H7PDDFR   YP.DWLF4     9.7559996   YP.DWLS3     1.1109991
    H7PDDFR   YP.DWL33     1.1109991   YP.DWL23     1.1109991
    H7PDDFR   YP.DWLF3     1.1109991   YP.DWLS2     .14399999
    H7PDDFR   YP.DWL32     .14399999   YP.DWL22     .14399999
    H7PDDFR   YP.DWLF2     .14399999
    H7PDD2R   H7PSR               1.   YP.ACRE             1.
    H7PDD2R   YP.DWLG.     18.871994   CRPSHO      -3.8839998
    H7PDD2R   CRP3HO      -2.2919998   CRP2HO      -1.1309996
    H7PDD2R   CDP2HO       .57099998   YP.DWLS8     .98699999
    H7PDD2R   YP.DWL38     .98699999   YP.DWL28     .98699999
    H7PDD2R   YP.DWLS7     1.0489998   YP.DWL37     1.0489998
    H7PDD2R   YP.DWL27     1.0489998   YP.DWLS6     2.3659992
    H7PDD2R   YP.DWL36     2.3659992   YP.DWL26     2.3659992
    H7PDD2R   YP.DWLS5     3.4589996   YP.DWL35     3.4589996
    H7PDD2R   YP.DWL25     3.4589996   YP.DWLS4     9.7559996
    H7PDD2R   YP.DWL34     9.7559996   YP.DWL24     9.7559996
    H7PDD2R   YP.DWLS3     1.1109991   YP.DWL33     1.1109991
    H7PDD2R   YP.DWL23     1.1109991   YP.DWLS2     .14399999
    H7PDD2R   YP.DWL32     .14399999   YP.DWL22     .14399999
    H7PDDFN   H7PSN               1.   H.PFN               1.
    H7PDDFN   ..P.NE              1.   YP.ACRE             1.
    H7PDDFN   YP.DWLG.     18.871994   CRPSHO      -3.8839998
    H7PDDFN   CRP3HO      -2.2919998   CRP2HO      -2.2629995
    H7PDDFN   CRPFHO      -1.1169996   CDPFHO       .57099998
    H7PDDFN   YP.DWLS8     .98699999   YP.DWL38     .98699999
    H7PDDFN   YP.DWL28     .98699999   YP.DWLF8     .98699999
    H7PDDFN   YP.DWLS7     1.0489998   YP.DWL37     1.0489998
    H7PDDFN   YP.DWL27     1.0489998   YP.DWLF7     1.0489998
    H7PDDFN   YP.DWLS6     2.3659992   YP.DWL36     2.3659992
    H7PDDFN   YP.DWL26     2.3659992   YP.DWLF6     2.3659992
    H7PDDFN   YP.DWLS5     3.4589996   YP.DWL35     3.4589996
    H7PDDFN   YP.DWL25     3.4589996   YP.DWLF5     3.4589996
    H7PDDFN   YP.DWLS4     9.7559996   YP.DWL34     9.7559996
    H7PDDFN   YP.DWL24     9.7559996   YP.DWLF4     9.7559996
    H7PDDFN   YP.DWLS3     1.1109991   YP.DWL33     1.1109991
    H7PDDFN   YP.DWL23     1.1109991   YP.DWLF3     1.1109991
    H7PDDFN   YP.DWLS2     .14399999   YP.DWL32     .14399999
    H7PDDFN   YP.DWL22     .14399999   YP.DWLF2     .14399999
    H7PDD2N   H7PSN               1.   H.P2N               1.
    H7PDD2N   ..P.NE              1.   YP.ACRE             1.
    H7PDD2N   YP.DWLG.     18.871994   CRPSHO      -3.8839998
    H7PDD2N   CRP3HO      -2.2919998   CRP2HO      -1.1309996
    H7PDD2N   CDP2HO       .57099998   YP.DWLS8     .98699999
    H7PDD2N   YP.DWL38     .98699999   YP.DWL28     .98699999
    H7PDD2N   YP.DWLS7     1.0489998   YP.DWL37     1.0489998
    H7PDD2N   YP.DWL27     1.0489998   YP.DWLS6     2.3659992
    H7PDD2N   YP.DWL36     2.3659992   YP.DWL26     2.3659992
    H7PDD2N   YP.DWLS5     3.4589996   YP.DWL35     3.4589996
    H7PDD2N   YP.DWL25     3.4589996   YP.DWLS4     9.7559996
    H7PDD2N   YP.DWL34     9.7559996   YP.DWL24     9.7559996
    H7PDD2N   YP.DWLS3     1.1109991   YP.DWL33     1.1109991
    H7PDD2N   YP.DWL23     1.1109991   YP.DWLS2     .14399999
    H7PDD2N   YP.DWL32     .14399999   YP.DWL22     .14399999
    HMPDDFR   HMPFT              -1.   HMP2T              -1.
    HMPDDFR   HMP3T              -1.   HMPST              -1.
    HMPDDFR   HMPSR               1.   YP.ACRE             1.
    HMPDDFR   YP.DWLG.     19.758987   CRPSHO      -4.2939997
    HMPDDFR   CRP3HO      -2.5749998   CRP2HO          -2.573
    HMPDDFR   CRPFHO      -1.2859993   CDPFHO       .59799999
    HMPDDFR   YP.DWLS8         1.066   YP.DWL38         1.066
    HMPDDFR   YP.DWL28         1.066   YP.DWLF8         1.066
    HMPDDFR   YP.DWLS7     1.0019999   YP.DWL37     1.0019999
    HMPDDFR   YP.DWL27     1.0019999   YP.DWLF7     1.0019999
    HMPDDFR   YP.DWLS6     4.8889999   YP.DWL36     4.8889999
    HMPDDFR   YP.DWL26     4.8889999   YP.DWLF6     4.8889999
    HMPDDFR   YP.DWLS5     4.9199991   YP.DWL35     4.9199991
    HMPDDFR   YP.DWL25     4.9199991   YP.DWLF5     4.9199991
    HMPDDFR   YP.DWLS4     3.5929995   YP.DWL34     3.5929995
    HMPDDFR   YP.DWL24     3.5929995   YP.DWLF4     3.5929995
    HMPDDFR   YP.DWLS3     2.7859993   YP.DWL33     2.7859993
    HMPDDFR   YP.DWL23     2.7859993   YP.DWLF3     2.7859993
    HMPDDFR   YP.DWLS2     .35799998   YP.DWL32     .35799998
    HMPDDFR   YP.DWL22     .35799998   YP.DWLF2     .35799998
    HMPDDFR   YP.DWLS1     1.1439991   YP.DWL31     1.1439991
    HMPDDFR   YP.DWL21     1.1439991   YP.DWLF1     1.1439991
    HMPDD2R   HMP2T              -1.   HMP3T              -1.
    HMPDD2R   HMPST              -1.   HMPSR               1.
    HMPDD2R   YP.ACRE             1.   YP.DWLG.     19.758987
    HMPDD2R   CRPSHO      -4.2939997   CRP3HO      -2.5749998
    HMPDD2R   CRP2HO      -1.2869997   CDP2HO       .59799999
    HMPDD2R   YP.DWLS8         1.066   YP.DWL38         1.066
    HMPDD2R   YP.DWL28         1.066   YP.DWLS7     1.0019999
    HMPDD2R   YP.DWL37     1.0019999   YP.DWL27     1.0019999
    HMPDD2R   YP.DWLS6     4.8889999   YP.DWL36     4.8889999
    HMPDD2R   YP.DWL26     4.8889999   YP.DWLS5     4.9199991
    HMPDD2R   YP.DWL35     4.9199991   YP.DWL25     4.9199991
    HMPDD2R   YP.DWLS4     3.5929995   YP.DWL34     3.5929995
    HMPDD2R   YP.DWL24     3.5929995   YP.DWLS3     2.7859993
    HMPDD2R   YP.DWL33     2.7859993   YP.DWL23     2.7859993
    HMPDD2R   YP.DWLS2     .35799998   YP.DWL32     .35799998
    HMPDD2R   YP.DWL22     .35799998   YP.DWLS1     1.1439991
    HMPDD2R   YP.DWL31     1.1439991   YP.DWL21     1.1439991
    HMPDD3R   HMP3T              -1.   HMPST              -1.
    HMPDD3R   HMPSR               1.   YP.ACRE             1.
    HMPDD3R   YP.DWLG.     19.758987   CRPSHO      -4.2939997
    HMPDD3R   CRP3HO      -1.2869997   CDP3HO       .59799999
    HMPDD3R   YP.DWLS8         1.066   YP.DWL38         1.066
    HMPDD3R   YP.DWLS7     1.0019999   YP.DWL37     1.0019999
    HMPDD3R   YP.DWLS6     4.8889999   YP.DWL36     4.8889999
    HMPDD3R   YP.DWLS5     4.9199991   YP.DWL35     4.9199991
    HMPDD3R   YP.DWLS4     3.5929995   YP.DWL34     3.5929995
    HMPDD3R   YP.DWLS3     2.7859993   YP.DWL33     2.7859993
    HMPDD3R   YP.DWLS2     .35799998   YP.DWL32     .35799998
    HMPDD3R   YP.DWLS1     1.1439991   YP.DWL31     1.1439991
    HMPDDSR   HMPST              -1.   HMPSR               1.
    HMPDDSR   YP.ACRE             1.   YP.DWLG.     19.758987
    HMPDDSR   CRPSHO      -2.1469994   CDPSHO       .59799999
    HMPDDSR   YP.DWLS8         1.066   YP.DWLS7     1.0019999
    HMPDDSR   YP.DWLS6     4.8889999   YP.DWLS5     4.9199991
    HMPDDSR   YP.DWLS4     3.5929995   YP.DWLS3     2.7859993
    HMPDDSR   YP.DWLS2     .35799998   YP.DWLS1     1.1439991
    HMPIDFN   HMPSN1              1.   H.PFN               1.
    HMPIDFN   ..P.NE              1.   YP.ACRE             1.
    HMPIDFN   YP.DWLG.     20.997986   CRPSHO          -4.573
    HMPIDFN   CRP3HO      -2.7439995   CRP2HO      -2.7439995
    HMPIDFN   CRPFHO      -1.3719997   CDPFHO       .63499999
    HMPIDFN   YP.DWLS6     8.6969995   YP.DWL36     8.6969995
    HMPIDFN   YP.DWL26     8.6969995   YP.DWLF6     8.6969995
    HMPIDFN   YP.DWLS5     6.4179993   YP.DWL35     6.4179993
    HMPIDFN   YP.DWL25     6.4179993   YP.DWLF5     6.4179993
    HMPIDFN   YP.DWLS4         4.724   YP.DWL34         4.724
    HMPIDFN   YP.DWL24         4.724   YP.DWLF4         4.724
    HMPIDFN   YP.DWLS3         1.158   YP.DWL33         1.158
    HMPIDFN   YP.DWL23         1.158   YP.DWLF3         1.158
    HMPID2N   HMPSN1              1.   H.P2N               1.
    HMPID2N   ..P.NE              1.   YP.ACRE             1.
    HMPID2N   YP.DWLG.     20.997986   CRPSHO          -4.573
    HMPID2N   CRP3HO      -2.7439995   CRP2HO      -1.3719997
    HMPID2N   CDP2HO       .63499999   YP.DWLS6     8.6969995
    HMPID2N   YP.DWL36     8.6969995   YP.DWL26     8.6969995
    HMPID2N   YP.DWLS5     6.4179993   YP.DWL35     6.4179993
    HMPID2N   YP.DWL25     6.4179993   YP.DWLS4         4.724
    HMPID2N   YP.DWL34         4.724   YP.DWL24         4.724
    HMPID2N   YP.DWLS3         1.158   YP.DWL33         1.158
    HMPID2N   YP.DWL23         1.158
    HMPID3N   HMPSN1              1.   H.P3N               1.
    HMPID3N   ..P.NE              1.   YP.ACRE             1.
    HMPID3N   YP.DWLG.     20.997986   CRPSHO          -4.573
    HMPID3N   CRP3HO      -1.3719997   CDP3HO       .63499999
    HMPID3N   YP.DWLS6     8.6969995   YP.DWL36     8.6969995
    HMPID3N   YP.DWLS5     6.4179993   YP.DWL35     6.4179993
    HMPID3N   YP.DWLS4         4.724   YP.DWL34         4.724
    HMPID3N   YP.DWLS3         1.158   YP.DWL33         1.158
    HMPIDSN   HMPSN1              1.   H.PSN               1.
    HMPIDSN   ..P.NE              1.   YP.ACRE             1.
    HMPIDSN   YP.DWLG.     20.997986   CRPSHO      -2.2869997
    HMPIDSN   CDPSHO       .63499999   YP.DWLS6     8.6969995
    HMPIDSN   YP.DWLS5     6.4179993   YP.DWLS4         4.724
    HMPIDSN   YP.DWLS3         1.158
    HMPIIFN   HMPSN1              1.   CRPSHO      -.50799996
    HMPIIFN   CRP3HO      -.30499995   CRP2HO      -.30499995
    HMPIIFN   CRPFHO      -.15199995   CEPFHO       2.0999994
    HMPIIFN   CTPFHO       15.615999   CIPFHO       10.592999
    HMPIIFN   YP.DWLS6     5.0209999   YP.DWL36     5.0209999
    HMPIIFN   YP.DWL26     5.0209999   YP.DWLF6     5.0209999
    HMPIIFN   YP.DWLS5    -2.0379992   YP.DWL35    -2.0379992
    HMPIIFN   YP.DWL25    -2.0379992   YP.DWLF5    -2.0379992
    HMPIIFN   YP.DWLS4    -1.9969997   YP.DWL34    -1.9969997
    HMPIIFN   YP.DWL24    -1.9969997   YP.DWLF4    -1.9969997
    HMPIIFN   YP.DWLS3    -.98599994   YP.DWL33    -.98599994
    HMPIIFN   YP.DWL23    -.98599994   YP.DWLF3    -.98599994
    HMPII2N   HMPSN1              1.   CRPSHO      -.50799996
    HMPII2N   CRP3HO      -.30499995   CRP2HO      -.15199995
    HMPII2N   CEP2HO       2.0999994   CTP2HO       15.615999
    HMPII2N   CIP2HO       10.592999   YP.DWLS6     5.0209999
    HMPII2N   YP.DWL36     5.0209999   YP.DWL26     5.0209999
    HMPII2N   YP.DWLS5    -2.0379992   YP.DWL35    -2.0379992
    HMPII2N   YP.DWL25    -2.0379992   YP.DWLS4    -1.9969997
    HMPII2N   YP.DWL34    -1.9969997   YP.DWL24    -1.9969997
    HMPII2N   YP.DWLS3    -.98599994   YP.DWL33    -.98599994
    HMPII2N   YP.DWL23    -.98599994
    HMPII3N   HMPSN1              1.   CRPSHO      -.50799996
    HMPII3N   CRP3HO      -.15199995   CEP3HO       2.0999994
    HMPII3N   CTP3HO       15.615999   CIP3HO       10.592999
    HMPII3N   YP.DWLS6     5.0209999   YP.DWL36     5.0209999
    HMPII3N   YP.DWLS5    -2.0379992   YP.DWL35    -2.0379992
    HMPII3N   YP.DWLS4    -1.9969997   YP.DWL34    -1.9969997
    HMPII3N   YP.DWLS3    -.98599994   YP.DWL33    -.98599994
    HMPIISN   HMPSN1              1.   CRPSHO      -.25399995
    HMPIISN   CEPSHO       2.0999994   CTPSHO       15.615999
    HMPIISN   CIPSHO       10.592999   YP.DWLS6     5.0209999
    HMPIISN   YP.DWLS5    -2.0379992   YP.DWLS4    -1.9969997
    HMPIISN   YP.DWLS3    -.98599994
    HMPCDFN   HMPSN2              1.   H.PFN               1.
    HMPCDFN   ..P.NE              1.   YP.ACRE             1.
    HMPCDFN   YP.DWLG.     20.412994   CRPSHO      -4.4459991
    HMPCDFN   CRP3HO      -2.6679993   CRP2HO      -2.6679993
    HMPCDFN   CRPFHO      -1.3339996   CDPFHO       .61699998
    HMPCDFN   YP.DWLS8        11.653   YP.DWL38        11.653
    HMPCDFN   YP.DWL28        11.653   YP.DWLF8        11.653
    HMPCDFN   YP.DWLS7     5.8459997   YP.DWL37     5.8459997
    HMPCDFN   YP.DWL27     5.8459997   YP.DWLF7     5.8459997
    HMPCDFN   YP.DWLS5     2.9129992   YP.DWL35     2.9129992
    HMPCDFN   YP.DWL25     2.9129992   YP.DWLF5     2.9129992
    HMPCD2N   HMPSN2              1.   H.P2N               1.
    HMPCD2N   ..P.NE              1.   YP.ACRE             1.
    HMPCD2N   YP.DWLG.     20.412994   CRPSHO      -4.4459991
    HMPCD2N   CRP3HO      -2.6679993   CRP2HO      -1.3339996
    HMPCD2N   CDP2HO       .61699998   YP.DWLS8        11.653
    HMPCD2N   YP.DWL38        11.653   YP.DWL28        11.653
    HMPCD2N   YP.DWLS7     5.8459997   YP.DWL37     5.8459997
    HMPCD2N   YP.DWL27     5.8459997   YP.DWLS5     2.9129992
    HMPCD2N   YP.DWL35     2.9129992   YP.DWL25     2.9129992
    HMPCD3N   HMPSN2              1.   H.P3N               1.
    HMPCD3N   ..P.NE              1.   YP.ACRE             1.
    HMPCD3N   YP.DWLG.     20.412994   CRPSHO      -4.4459991
    HMPCD3N   CRP3HO      -1.3339996   CDP3HO       .61699998
    HMPCD3N   YP.DWLS8        11.653   YP.DWL38        11.653
    HMPCD3N   YP.DWLS7     5.8459997   YP.DWL37     5.8459997
    HMPCD3N   YP.DWLS5     2.9129992   YP.DWL35     2.9129992
    HMPCDSN   HMPSN2              1.   H.PSN               1.
    HMPCDSN   ..P.NE              1.   YP.ACRE             1.
    HMPCDSN   YP.DWLG.     20.412994   CRPSHO      -2.2229996
    HMPCDSN   CDPSHO       .61699998   YP.DWLS8        11.653
    HMPCDSN   YP.DWLS7     5.8459997   YP.DWLS5     2.9129992
    HMPCCFN   HMPSN2              1.   CRPSHO       4.5859995
    HMPCCFN   CRP3HO       2.7519999   CRP2HO       2.7519999
    HMPCCFN   CRPFHO       1.3759995   CEPFHO       2.0409994
    HMPCCFN   CTPFHO        29.94899   CCPFHO       43.207993
    HMPCCFN   YP.DWLG.    -26.238998   YP.DWLS8        11.653
    HMPCCFN   YP.DWL38        11.653   YP.DWL28        11.653
    HMPCCFN   YP.DWLF8        11.653   YP.DWLS7     2.9329996
    HMPCCFN   YP.DWL37     2.9329996   YP.DWL27     2.9329996
    HMPCCFN   YP.DWLF7     2.9329996   YP.DWLS4    -14.585999
    HMPCCFN   YP.DWL34    -14.585999   YP.DWL24    -14.585999
    HMPCCFN   YP.DWLF4    -14.585999   YP.DWLS3    -23.325989
    HMPCCFN   YP.DWL33    -23.325989   YP.DWL23    -23.325989
    HMPCCFN   YP.DWLF3    -23.325989   YP.DWLS2    -2.9129992
    HMPCCFN   YP.DWL32    -2.9129992   YP.DWL22    -2.9129992
    HMPCCFN   YP.DWLF2    -2.9129992
    HMPCC2N   HMPSN2              1.   CRPSHO       4.5859995
    HMPCC2N   CRP3HO       2.7519999   CRP2HO       1.3759995
    HMPCC2N   CEP2HO       2.0409994   CTP2HO        29.94899
    HMPCC2N   CCP2HO       43.207993   YP.DWLG.    -26.238998
    HMPCC2N   YP.DWLS8        11.653   YP.DWL38        11.653
    HMPCC2N   YP.DWL28        11.653   YP.DWLS7     2.9329996
    HMPCC2N   YP.DWL37     2.9329996   YP.DWL27     2.9329996
    HMPCC2N   YP.DWLS4    -14.585999   YP.DWL34    -14.585999
    HMPCC2N   YP.DWL24    -14.585999   YP.DWLS3    -23.325989
    HMPCC2N   YP.DWL33    -23.325989   YP.DWL23    -23.325989
    HMPCC2N   YP.DWLS2    -2.9129992   YP.DWL32    -2.9129992
    HMPCC2N   YP.DWL22    -2.9129992
    HMPCC3N   HMPSN2              1.   CRPSHO       4.5859995
    HMPCC3N   CRP3HO       1.3759995   CEP3HO       2.0409994
    HMPCC3N   CTP3HO        29.94899   CCP3HO       43.207993
    HMPCC3N   YP.DWLG.    -26.238998   YP.DWLS8        11.653
    HMPCC3N   YP.DWL38        11.653   YP.DWLS7     2.9329996
    HMPCC3N   YP.DWL37     2.9329996   YP.DWLS4    -14.585999
    HMPCC3N   YP.DWL34    -14.585999   YP.DWLS3    -23.325989
    HMPCC3N   YP.DWL33    -23.325989   YP.DWLS2    -2.9129992
    HMPCC3N   YP.DWL32    -2.9129992
    HMPCCSN   HMPSN2              1.   CRPSHO       2.2929993
    HMPCCSN   CEPSHO       2.0409994   CTPSHO        29.94899
    HMPCCSN   CCPSHO       43.207993   YP.DWLG.    -26.238998
    HMPCCSN   YP.DWLS8        11.653   YP.DWLS7     2.9329996
    HMPCCSN   YP.DWLS4    -14.585999   YP.DWLS3    -23.325989
    HMPCCSN   YP.DWLS2    -2.9129992
    HMPPDFN   HMPSN3              1.   H.PFN               1.
    HMPPDFN   ..P.NE              1.   YP.ACRE             1.
    HMPPDFN   YP.DWLG.     19.660995   CRPSHO      -4.2819996
    HMPPDFN   CRP3HO      -2.5689993   CRP2HO      -2.5689993
    HMPPDFN   CRPFHO      -1.2849998   CDPFHO       .59499997
    HMPPDFN   YP.DWLS7     1.1519995   YP.DWL37     1.1519995
    HMPPDFN   YP.DWL27     1.1519995   YP.DWLF7     1.1519995
    HMPPDFN   YP.DWLS6     2.3499994   YP.DWL36     2.3499994
    HMPPDFN   YP.DWL26     2.3499994   YP.DWLF6     2.3499994
    HMPPDFN   YP.DWLS5     4.0939999   YP.DWL35     4.0939999
    HMPPDFN   YP.DWL25     4.0939999   YP.DWLF5     4.0939999
    HMPPDFN   YP.DWLS4         3.158   YP.DWL34         3.158
    HMPPDFN   YP.DWL24         3.158   YP.DWLF4         3.158
    HMPPDFN   YP.DWLS3     4.8759995   YP.DWL33     4.8759995
    HMPPDFN   YP.DWL23     4.8759995   YP.DWLF3     4.8759995
    HMPPDFN   YP.DWLS2     .95999998   YP.DWL32     .95999998
    HMPPDFN   YP.DWL22     .95999998   YP.DWLF2     .95999998
    HMPPDFN   YP.DWLS1     3.0709991   YP.DWL31     3.0709991
    HMPPDFN   YP.DWL21     3.0709991   YP.DWLF1     3.0709991
    HMPPD2N   HMPSN3              1.   H.P2N               1.
    HMPPD2N   ..P.NE              1.   YP.ACRE             1.
    HMPPD2N   YP.DWLG.     19.660995   CRPSHO      -4.2819996
    HMPPD2N   CRP3HO      -2.5689993   CRP2HO      -1.2849998
    HMPPD2N   CDP2HO       .59499997   YP.DWLS7     1.1519995
    HMPPD2N   YP.DWL37     1.1519995   YP.DWL27     1.1519995
    HMPPD2N   YP.DWLS6     2.3499994   YP.DWL36     2.3499994
    HMPPD2N   YP.DWL26     2.3499994   YP.DWLS5     4.0939999
    HMPPD2N   YP.DWL35     4.0939999   YP.DWL25     4.0939999
    HMPPD2N   YP.DWLS4         3.158   YP.DWL34         3.158
    HMPPD2N   YP.DWL24         3.158   YP.DWLS3     4.8759995
    HMPPD2N   YP.DWL33     4.8759995   YP.DWL23     4.8759995
    HMPPD2N   YP.DWLS2     .95999998   YP.DWL32     .95999998
    HMPPD2N   YP.DWL22     .95999998   YP.DWLS1     3.0709991
    HMPPD2N   YP.DWL31     3.0709991   YP.DWL21     3.0709991
    HMPPD3N   HMPSN3              1.   H.P3N               1.
    HMPPD3N   ..P.NE              1.   YP.ACRE             1.
    HMPPD3N   YP.DWLG.     19.660995   CRPSHO      -4.2819996
    HMPPD3N   CRP3HO      -1.2849998   CDP3HO       .59499997
    HMPPD3N   YP.DWLS7     1.1519995   YP.DWL37     1.1519995
    HMPPD3N   YP.DWLS6     2.3499994   YP.DWL36     2.3499994
    HMPPD3N   YP.DWLS5     4.0939999   YP.DWL35     4.0939999
    HMPPD3N   YP.DWLS4         3.158   YP.DWL34         3.158
    HMPPD3N   YP.DWLS3     4.8759995   YP.DWL33     4.8759995
    HMPPD3N   YP.DWLS2     .95999998   YP.DWL32     .95999998
    HMPPD3N   YP.DWLS1     3.0709991   YP.DWL31     3.0709991
    HMPPDSN   HMPSN3              1.   H.PSN               1.
    HMPPDSN   ..P.NE              1.   YP.ACRE             1.
    HMPPDSN   YP.DWLG.     19.660995   CRPSHO      -2.1409998
    HMPPDSN   CDPSHO       .59499997   YP.DWLS7     1.1519995
    HMPPDSN   YP.DWLS6     2.3499994   YP.DWLS5     4.0939999
    HMPPDSN   YP.DWLS4         3.158   YP.DWLS3     4.8759995
    HMPPDSN   YP.DWLS2     .95999998   YP.DWLS1     3.0709991
    HMPGDFN   HMPSN4              1.   H.PFN               1.
    HMPGDFN   ..P.NE              1.   YP.ACRE             1.
    HMPGDFN   YP.DWLG.     18.250992   CRPSHO      -3.9379997
    HMPGDFN   CRP3HO      -2.3559999   CRP2HO      -2.3509998
    HMPGDFN   CRPFHO      -1.1729994   CDPFHO       .55199999
    HMPGDFN   YP.DWLS8     1.9069996   YP.DWL38     1.9069996
    HMPGDFN   YP.DWL28     1.9069996   YP.DWLF8     1.9069996
    HMPGDFN   YP.DWLS7     1.1039991   YP.DWL37     1.1039991
    HMPGDFN   YP.DWL27     1.1039991   YP.DWLF7     1.1039991
    HMPGDFN   YP.DWLS6     4.7779999   YP.DWL36     4.7779999
    HMPGDFN   YP.DWL26     4.7779999   YP.DWLF6     4.7779999
    HMPGDFN   YP.DWLS5     4.6409998   YP.DWL35     4.6409998
    HMPGDFN   YP.DWL25     4.6409998   YP.DWLF5     4.6409998
    HMPGDFN   YP.DWLS4         3.507   YP.DWL34         3.507
    HMPGDFN   YP.DWL24         3.507   YP.DWLF4         3.507
    HMPGDFN   YP.DWLS3     2.3119993   YP.DWL33     2.3119993
    HMPGDFN   YP.DWL23     2.3119993   YP.DWLF3     2.3119993
    HMPGD2N   HMPSN4              1.   H.P2N               1.
    HMPGD2N   ..P.NE              1.   YP.ACRE             1.
    HMPGD2N   YP.DWLG.     18.250992   CRPSHO      -3.9379997
    HMPGD2N   CRP3HO      -2.3559999   CRP2HO      -1.1759996
    HMPGD2N   CDP2HO       .55199999   YP.DWLS8     1.9069996
    HMPGD2N   YP.DWL38     1.9069996   YP.DWL28     1.9069996
    HMPGD2N   YP.DWLS7     1.1039991   YP.DWL37     1.1039991
    HMPGD2N   YP.DWL27     1.1039991   YP.DWLS6     4.7779999
    HMPGD2N   YP.DWL36     4.7779999   YP.DWL26     4.7779999
    HMPGD2N   YP.DWLS5     4.6409998   YP.DWL35     4.6409998
    HMPGD2N   YP.DWL25     4.6409998   YP.DWLS4         3.507
    HMPGD2N   YP.DWL34         3.507   YP.DWL24         3.507
    HMPGD2N   YP.DWLS3     2.3119993   YP.DWL33     2.3119993
    HMPGD2N   YP.DWL23     2.3119993
    HMPGD3N   HMPSN4              1.   H.P3N               1.
    HMPGD3N   ..P.NE              1.   YP.ACRE             1.
    HMPGD3N   YP.DWLG.     18.250992   CRPSHO      -3.9379997
    HMPGD3N   CRP3HO      -1.1779995   CDP3HO       .55199999
    HMPGD3N   YP.DWLS8     1.9069996   YP.DWL38     1.9069996
    HMPGD3N   YP.DWLS7     1.1039991   YP.DWL37     1.1039991
    HMPGD3N   YP.DWLS6     4.7779999   YP.DWL36     4.7779999
    HMPGD3N   YP.DWLS5     4.6409998   YP.DWL35     4.6409998
    HMPGD3N   YP.DWLS4         3.507   YP.DWL34         3.507
    HMPGD3N   YP.DWLS3     2.3119993   YP.DWL33     2.3119993
    HMPGDSN   HMPSN4              1.   H.PSN               1.
    HMPGDSN   ..P.NE              1.   YP.ACRE             1.
    HMPGDSN   YP.DWLG.     18.250992   CRPSHO      -1.9689999
    HMPGDSN   CDPSHO       .55199999   YP.DWLS8     1.9069996
    HMPGDSN   YP.DWLS7     1.1039991   YP.DWLS6     4.7779999
    HMPGDSN   YP.DWLS5     4.6409998   YP.DWLS4         3.507
    HMPGDSN   YP.DWLS3     2.3119993
    HLPDDFR   HLPFT              -1.   HLP2T              -1.
    HLPDDFR   HLP3T              -1.   HLPST              -1.
    HLPDDFR   HLPSR               1.   YP.ACRE             1.
    HLPDDFR   YP.DWLG.     18.812988   CRPSHO      -4.0969992
    HLPDDFR   CRP3HO      -2.4579992   CRP2HO      -2.4579992
    HLPDDFR   CRPFHO      -1.2289991   CDPFHO       .56899995
    HLPDDFR   YP.DWLS8     1.4509993   YP.DWL38     1.4509993
    HLPDDFR   YP.DWL28     1.4509993   YP.DWLF8     1.4509993
    HLPDDFR   YP.DWLS7     1.6799994   YP.DWL37     1.6799994
    HLPDDFR   YP.DWL27     1.6799994   YP.DWLF7     1.6799994
    HLPDDFR   YP.DWLS6     5.9909992   YP.DWL36     5.9909992
    HLPDDFR   YP.DWL26     5.9909992   YP.DWLF6     5.9909992
    HLPDDFR   YP.DWLS5     4.3989992   YP.DWL35     4.3989992
    HLPDDFR   YP.DWL25     4.3989992   YP.DWLF5     4.3989992
    HLPDDFR   YP.DWLS4     3.6009998   YP.DWL34     3.6009998
    HLPDDFR   YP.DWL24     3.6009998   YP.DWLF4     3.6009998
    HLPDDFR   YP.DWLS3     1.3439999   YP.DWL33     1.3439999
    HLPDDFR   YP.DWL23     1.3439999   YP.DWLF3     1.3439999
    HLPDDFR   YP.DWLS2     .31899995   YP.DWL32     .31899995
    HLPDDFR   YP.DWL22     .31899995   YP.DWLF2     .31899995
    HLPDDFR   YP.DWLS1    .028999999   YP.DWL31    .028999999
    HLPDDFR   YP.DWL21    .028999999   YP.DWLF1    .028999999
    HLPDD2R   HLP2T              -1.   HLP3T              -1.
    HLPDD2R   HLPST              -1.   HLPSR               1.
    HLPDD2R   YP.ACRE             1.   YP.DWLG.     18.812988
    HLPDD2R   CRPSHO      -4.0969992   CRP3HO      -2.4579992
    HLPDD2R   CRP2HO      -1.2289991   CDP2HO       .56899995
    HLPDD2R   YP.DWLS8     1.4509993   YP.DWL38     1.4509993
    HLPDD2R   YP.DWL28     1.4509993   YP.DWLS7     1.6799994
    HLPDD2R   YP.DWL37     1.6799994   YP.DWL27     1.6799994
    HLPDD2R   YP.DWLS6     5.9909992   YP.DWL36     5.9909992
    HLPDD2R   YP.DWL26     5.9909992   YP.DWLS5     4.3989992
    HLPDD2R   YP.DWL35     4.3989992   YP.DWL25     4.3989992
    HLPDD2R   YP.DWLS4     3.6009998   YP.DWL34     3.6009998
    HLPDD2R   YP.DWL24     3.6009998   YP.DWLS3     1.3439999
    HLPDD2R   YP.DWL33     1.3439999   YP.DWL23     1.3439999
    HLPDD2R   YP.DWLS2     .31899995   YP.DWL32     .31899995
    HLPDD2R   YP.DWL22     .31899995   YP.DWLS1    .028999999
    HLPDD2R   YP.DWL31    .028999999   YP.DWL21    .028999999
    HLPDD3R   HLP3T              -1.   HLPST              -1.
    HLPDD3R   HLPSR               1.   YP.ACRE             1.
    HLPDD3R   YP.DWLG.     18.812988   CRPSHO      -4.0969992
    HLPDD3R   CRP3HO      -1.2289991   CDP3HO       .56899995
    HLPDD3R   YP.DWLS8     1.4509993   YP.DWL38     1.4509993
    HLPDD3R   YP.DWLS7     1.6799994   YP.DWL37     1.6799994
    HLPDD3R   YP.DWLS6     5.9909992   YP.DWL36     5.9909992
    HLPDD3R   YP.DWLS5     4.3989992   YP.DWL35     4.3989992
    HLPDD3R   YP.DWLS4     3.6009998   YP.DWL34     3.6009998
    HLPDD3R   YP.DWLS3     1.3439999   YP.DWL33     1.3439999
    HLPDD3R   YP.DWLS2     .31899995   YP.DWL32     .31899995
    HLPDD3R   YP.DWLS1    .028999999   YP.DWL31    .028999999
    HLPDDSR   HLPST              -1.   HLPSR               1.
    HLPDDSR   YP.ACRE             1.   YP.DWLG.     18.812988
    HLPDDSR   CRPSHO      -2.0479994   CDPSHO       .56899995
    HLPDDSR   YP.DWLS8     1.4509993   YP.DWLS7     1.6799994
    HLPDDSR   YP.DWLS6     5.9909992   YP.DWLS5     4.3989992
    HLPDDSR   YP.DWLS4     3.6009998   YP.DWLS3     1.3439999
    HLPDDSR   YP.DWLS2     .31899995   YP.DWLS1    .028999999
    HLPIDFN   HLPSN1              1.   H.PFN               1.
    HLPIDFN   ..P.NE              1.   YP.ACRE             1.
    HLPIDFN   YP.DWLG.     21.540985   CRPSHO      -4.6919994
    HLPIDFN   CRP3HO      -2.8149996   CRP2HO      -2.8149996
    HLPIDFN   CRPFHO      -1.4069996   CDPFHO       .65199995
    HLPIDFN   YP.DWLS8     .59999996   YP.DWL38     .59999996
    HLPIDFN   YP.DWL28     .59999996   YP.DWLF8     .59999996
    HLPIDFN   YP.DWLS7     1.3089991   YP.DWL37     1.3089991
    HLPIDFN   YP.DWL27     1.3089991   YP.DWLF7     1.3089991
    HLPIDFN   YP.DWLS6     8.8919992   YP.DWL36     8.8919992
    HLPIDFN   YP.DWL26     8.8919992   YP.DWLF6     8.8919992
    HLPIDFN   YP.DWLS5     4.5309992   YP.DWL35     4.5309992
    HLPIDFN   YP.DWL25     4.5309992   YP.DWLF5     4.5309992
    HLPIDFN   YP.DWLS4     4.7449999   YP.DWL34     4.7449999
    HLPIDFN   YP.DWL24     4.7449999   YP.DWLF4     4.7449999
    HLPIDFN   YP.DWLS3     1.2179995   YP.DWL33     1.2179995
    HLPIDFN   YP.DWL23     1.2179995   YP.DWLF3     1.2179995
    HLPIDFN   YP.DWLS2     .17099994   YP.DWL32     .17099994
    HLPIDFN   YP.DWL22     .17099994   YP.DWLF2     .17099994
    HLPIDFN   YP.DWLS1    .074999988   YP.DWL31    .074999988
    HLPIDFN   YP.DWL21    .074999988   YP.DWLF1    .074999988
    HLPID2N   HLPSN1              1.   H.P2N               1.
    HLPID2N   ..P.NE              1.   YP.ACRE             1.
    HLPID2N   YP.DWLG.     21.540985   CRPSHO      -4.6919994
    HLPID2N   CRP3HO      -2.8149996   CRP2HO      -1.4069996
    HLPID2N   CDP2HO       .65199995   YP.DWLS8     .59999996
    HLPID2N   YP.DWL38     .59999996   YP.DWL28     .59999996
    HLPID2N   YP.DWLS7     1.3089991   YP.DWL37     1.3089991
    HLPID2N   YP.DWL27     1.3089991   YP.DWLS6     8.8919992
    HLPID2N   YP.DWL36     8.8919992   YP.DWL26     8.8919992
    HLPID2N   YP.DWLS5     4.5309992   YP.DWL35     4.5309992
    HLPID2N   YP.DWL25     4.5309992   YP.DWLS4     4.7449999
    HLPID2N   YP.DWL34     4.7449999   YP.DWL24     4.7449999
    HLPID2N   YP.DWLS3     1.2179995   YP.DWL33     1.2179995
    HLPID2N   YP.DWL23     1.2179995   YP.DWLS2     .17099994
    HLPID2N   YP.DWL32     .17099994   YP.DWL22     .17099994
    HLPID2N   YP.DWLS1    .074999988   YP.DWL31    .074999988
    HLPID2N   YP.DWL21    .074999988
    HLPID3N   HLPSN1              1.   H.P3N               1.
    HLPID3N   ..P.NE              1.   YP.ACRE             1.
    HLPID3N   YP.DWLG.     21.540985   CRPSHO      -4.6919994
    HLPID3N   CRP3HO      -1.4069996   CDP3HO       .65199995
    HLPID3N   YP.DWLS8     .59999996   YP.DWL38     .59999996
    HLPID3N   YP.DWLS7     1.3089991   YP.DWL37     1.3089991
    HLPID3N   YP.DWLS6     8.8919992   YP.DWL36     8.8919992
    HLPID3N   YP.DWLS5     4.5309992   YP.DWL35     4.5309992
    HLPID3N   YP.DWLS4     4.7449999   YP.DWL34     4.7449999
    HLPID3N   YP.DWLS3     1.2179995   YP.DWL33     1.2179995
    HLPID3N   YP.DWLS2     .17099994   YP.DWL32     .17099994
    HLPID3N   YP.DWLS1    .074999988   YP.DWL31    .074999988
    HLPIDSN   HLPSN1              1.   H.PSN               1.
    HLPIDSN   ..P.NE              1.   YP.ACRE             1.
    HLPIDSN   YP.DWLG.     21.540985   CRPSHO      -2.3459997
    HLPIDSN   CDPSHO       .65199995   YP.DWLS8     .59999996
    HLPIDSN   YP.DWLS7     1.3089991   YP.DWLS6     8.8919992
    HLPIDSN   YP.DWLS5     4.5309992   YP.DWLS4     4.7449999
    HLPIDSN   YP.DWLS3     1.2179995   YP.DWLS2     .17099994
    HLPIDSN   YP.DWLS1    .074999988
    HLPIIFN   HLPSN1              1.   CRPSHO      -.52099997
    HLPIIFN   CRP3HO      -.31299996   CRP2HO      -.31299996
    HLPIIFN   CRPFHO      -.15599996   CEPFHO       2.1539993
    HLPIIFN   CTPFHO       10.214999   CIPFHO          10.634
    HLPIIFN   YP.DWLS8     .36699998   YP.DWL38     .36699998
    HLPIIFN   YP.DWL28     .36699998   YP.DWLF8     .36699998
    HLPIIFN   YP.DWLS7     .33099997   YP.DWL37     .33099997
    HLPIIFN   YP.DWL27     .33099997   YP.DWLF7     .33099997
    HLPIIFN   YP.DWLS6     3.0759993   YP.DWL36     3.0759993
    HLPIIFN   YP.DWL26     3.0759993   YP.DWLF6     3.0759993
    HLPIIFN   YP.DWLS5    -2.3479996   YP.DWL35    -2.3479996
    HLPIIFN   YP.DWL25    -2.3479996   YP.DWLF5    -2.3479996
    HLPIIFN   YP.DWLS4    -.33899999   YP.DWL34    -.33899999
    HLPIIFN   YP.DWL24    -.33899999   YP.DWLF4    -.33899999
    HLPIIFN   YP.DWLS3    -.99399996   YP.DWL33    -.99399996
    HLPIIFN   YP.DWL23    -.99399996   YP.DWLF3    -.99399996
    HLPIIFN   YP.DWLS2   -.091999948   YP.DWL32   -.091999948
    HLPIIFN   YP.DWL22   -.091999948   YP.DWLF2   -.091999948
    HLPII2N   HLPSN1              1.   CRPSHO      -.52099997
    HLPII2N   CRP3HO      -.31299996   CRP2HO      -.15599996
    HLPII2N   CEP2HO       2.1539993   CTP2HO       10.214999
    HLPII2N   CIP2HO          10.634   YP.DWLS8     .36699998
    HLPII2N   YP.DWL38     .36699998   YP.DWL28     .36699998
    HLPII2N   YP.DWLS7     .33099997   YP.DWL37     .33099997
    HLPII2N   YP.DWL27     .33099997   YP.DWLS6     3.0759993
    HLPII2N   YP.DWL36     3.0759993   YP.DWL26     3.0759993
    HLPII2N   YP.DWLS5    -2.3479996   YP.DWL35    -2.3479996
    HLPII2N   YP.DWL25    -2.3479996   YP.DWLS4    -.33899999
    HLPII2N   YP.DWL34    -.33899999   YP.DWL24    -.33899999
    HLPII2N   YP.DWLS3    -.99399996   YP.DWL33    -.99399996
    HLPII2N   YP.DWL23    -.99399996   YP.DWLS2   -.091999948
    HLPII2N   YP.DWL32   -.091999948   YP.DWL22   -.091999948
    HLPII3N   HLPSN1              1.   CRPSHO      -.52099997
    HLPII3N   CRP3HO      -.15599996   CEP3HO       2.1539993
    HLPII3N   CTP3HO       10.214999   CIP3HO          10.634
    HLPII3N   YP.DWLS8     .36699998   YP.DWL38     .36699998
    HLPII3N   YP.DWLS7     .33099997   YP.DWL37     .33099997
    HLPII3N   YP.DWLS6     3.0759993   YP.DWL36     3.0759993
    HLPII3N   YP.DWLS5    -2.3479996   YP.DWL35    -2.3479996
    HLPII3N   YP.DWLS4    -.33899999   YP.DWL34    -.33899999
    HLPII3N   YP.DWLS3    -.99399996   YP.DWL33    -.99399996
    HLPII3N   YP.DWLS2   -.091999948   YP.DWL32   -.091999948
    HLPIISN   HLPSN1              1.   CRPSHO      -.26099998
    HLPIISN   CEPSHO       2.1539993   CTPSHO       10.214999
    HLPIISN   CIPSHO          10.634   YP.DWLS8     .36699998
    HLPIISN   YP.DWLS7     .33099997   YP.DWLS6     3.0759993
    HLPIISN   YP.DWLS5    -2.3479996   YP.DWLS4    -.33899999
    HLPIISN   YP.DWLS3    -.99399996   YP.DWLS2   -.091999948
    HLPCDFN   HLPSN2              1.   H.PFN               1.
    HLPCDFN   ..P.NE              1.   YP.ACRE             1.
    HLPCDFN   YP.DWLG.     19.813995   CRPSHO      -4.3149996
    HLPCDFN   CRP3HO      -2.5889997   CRP2HO      -2.5889997
    HLPCDFN   CRPFHO      -1.2949991   CDPFHO       .59899998
    HLPCDFN   YP.DWLS8     14.834999   YP.DWL38     14.834999
    HLPCDFN   YP.DWL28     14.834999   YP.DWLF8     14.834999
    HLPCDFN   YP.DWLS7     3.1589994   YP.DWL37     3.1589994
    HLPCDFN   YP.DWL27     3.1589994   YP.DWLF7     3.1589994
    HLPCDFN   YP.DWLS6     1.8189993   YP.DWL36     1.8189993
    HLPCDFN   YP.DWL26     1.8189993   YP.DWLF6     1.8189993
    HLPCD2N   HLPSN2              1.   H.P2N               1.
    HLPCD2N   ..P.NE              1.   YP.ACRE             1.
    HLPCD2N   YP.DWLG.     19.813995   CRPSHO      -4.3149996
    HLPCD2N   CRP3HO      -2.5889997   CRP2HO      -1.2949991
    HLPCD2N   CDP2HO       .59899998   YP.DWLS8     14.834999
    HLPCD2N   YP.DWL38     14.834999   YP.DWL28     14.834999
    HLPCD2N   YP.DWLS7     3.1589994   YP.DWL37     3.1589994
    HLPCD2N   YP.DWL27     3.1589994   YP.DWLS6     1.8189993
    HLPCD2N   YP.DWL36     1.8189993   YP.DWL26     1.8189993
    HLPCD3N   HLPSN2              1.   H.P3N               1.
    HLPCD3N   ..P.NE              1.   YP.ACRE             1.
    HLPCD3N   YP.DWLG.     19.813995   CRPSHO      -4.3149996
    HLPCD3N   CRP3HO      -1.2949991   CDP3HO       .59899998
    HLPCD3N   YP.DWLS8     14.834999   YP.DWL38     14.834999
    HLPCD3N   YP.DWLS7     3.1589994   YP.DWL37     3.1589994
    HLPCD3N   YP.DWLS6     1.8189993   YP.DWL36     1.8189993
    HLPCDSN   HLPSN2              1.   H.PSN               1.
    HLPCDSN   ..P.NE              1.   YP.ACRE             1.
    HLPCDSN   YP.DWLG.     19.813995   CRPSHO          -2.158
    HLPCDSN   CDPSHO       .59899998   YP.DWLS8     14.834999
    HLPCDSN   YP.DWLS7     3.1589994   YP.DWLS6     1.8189993
    HLPCCFN   HLPSN2              1.   CRPSHO       3.8699999
    HLPCCFN   CRP3HO       2.3219995   CRP2HO       2.3219995
    HLPCCFN   CRPFHO       1.1609993   CEPFHO       1.9809999
    HLPCCFN   CTPFHO          15.389   CCPFHO       30.938995
    HLPCCFN   YP.DWLG.    -22.467987   YP.DWLS8        14.422
    HLPCCFN   YP.DWL38        14.422   YP.DWL28        14.422
    HLPCCFN   YP.DWLF8        14.422   YP.DWLS7     2.7079992
    HLPCCFN   YP.DWL37     2.7079992   YP.DWL27     2.7079992
    HLPCCFN   YP.DWLF7     2.7079992   YP.DWLS6    -1.4939995
    HLPCCFN   YP.DWL36    -1.4939995   YP.DWL26    -1.4939995
    HLPCCFN   YP.DWLF6    -1.4939995   YP.DWLS5    -6.5999994
    HLPCCFN   YP.DWL35    -6.5999994   YP.DWL25    -6.5999994
    HLPCCFN   YP.DWLF5    -6.5999994   YP.DWLS4     -17.42099
    HLPCCFN   YP.DWL34     -17.42099   YP.DWL24     -17.42099
    HLPCCFN   YP.DWLF4     -17.42099   YP.DWLS3       -13.181
    HLPCCFN   YP.DWL33       -13.181   YP.DWL23       -13.181
    HLPCCFN   YP.DWLF3       -13.181   YP.DWLS2         -.903
    HLPCCFN   YP.DWL32         -.903   YP.DWL22         -.903
    HLPCCFN   YP.DWLF2         -.903
    HLPCC2N   HLPSN2              1.   CRPSHO       3.8699999
    HLPCC2N   CRP3HO       2.3219995   CRP2HO       1.1609993
    HLPCC2N   CEP2HO       1.9809999   CTP2HO          15.389
    HLPCC2N   CCP2HO       30.938995   YP.DWLG.    -22.467987
    HLPCC2N   YP.DWLS8        14.422   YP.DWL38        14.422
    HLPCC2N   YP.DWL28        14.422   YP.DWLS7     2.7079992
    HLPCC2N   YP.DWL37     2.7079992   YP.DWL27     2.7079992
    HLPCC2N   YP.DWLS6    -1.4939995   YP.DWL36    -1.4939995
    HLPCC2N   YP.DWL26    -1.4939995   YP.DWLS5    -6.5999994
    HLPCC2N   YP.DWL35    -6.5999994   YP.DWL25    -6.5999994
    HLPCC2N   YP.DWLS4     -17.42099   YP.DWL34     -17.42099
    HLPCC2N   YP.DWL24     -17.42099   YP.DWLS3       -13.181
    HLPCC2N   YP.DWL33       -13.181   YP.DWL23       -13.181
    HLPCC2N   YP.DWLS2         -.903   YP.DWL32         -.903
    HLPCC2N   YP.DWL22         -.903
    HLPCC3N   HLPSN2              1.   CRPSHO       3.8699999
    HLPCC3N   CRP3HO       1.1609993   CEP3HO       1.9809999
    HLPCC3N   CTP3HO          15.389   CCP3HO       30.938995
    HLPCC3N   YP.DWLG.    -22.467987   YP.DWLS8        14.422
    HLPCC3N   YP.DWL38        14.422   YP.DWLS7     2.7079992
    HLPCC3N   YP.DWL37     2.7079992   YP.DWLS6    -1.4939995
    HLPCC3N   YP.DWL36    -1.4939995   YP.DWLS5    -6.5999994
    HLPCC3N   YP.DWL35    -6.5999994   YP.DWLS4     -17.42099
    HLPCC3N   YP.DWL34     -17.42099   YP.DWLS3       -13.181
    HLPCC3N   YP.DWL33       -13.181   YP.DWLS2         -.903
    HLPCC3N   YP.DWL32         -.903
    HLPCCSN   HLPSN2              1.   CRPSHO       1.9349995
    HLPCCSN   CEPSHO       1.9809999   CTPSHO          15.389
    HLPCCSN   CCPSHO       30.938995   YP.DWLG.    -22.467987
    HLPCCSN   YP.DWLS8        14.422   YP.DWLS7     2.7079992
    HLPCCSN   YP.DWLS6    -1.4939995   YP.DWLS5    -6.5999994
    HLPCCSN   YP.DWLS4     -17.42099   YP.DWLS3       -13.181
    HLPCCSN   YP.DWLS2         -.903
    HLPPDFN   HLPSN3              1.   H.PFN               1.
    HLPPDFN   ..P.NE              1.   YP.ACRE             1.
    HLPPDFN   YP.DWLG.     19.201996   CRPSHO      -4.1819992
    HLPPDFN   CRP3HO      -2.5089998   CRP2HO      -2.5089998
    HLPPDFN   CRPFHO      -1.2549992   CDPFHO       .58099997
    HLPPDFN   YP.DWLS8     .85899997   YP.DWL38     .85899997
    HLPPDFN   YP.DWL28     .85899997   YP.DWLF8     .85899997
    HLPPDFN   YP.DWLS7     .95799994   YP.DWL37     .95799994
    HLPPDFN   YP.DWL27     .95799994   YP.DWLF7     .95799994
    HLPPDFN   YP.DWLS6     2.5269995   YP.DWL36     2.5269995
    HLPPDFN   YP.DWL26     2.5269995   YP.DWLF6     2.5269995
    HLPPDFN   YP.DWLS5     6.3319998   YP.DWL35     6.3319998
    HLPPDFN   YP.DWL25     6.3319998   YP.DWLF5     6.3319998
    HLPPDFN   YP.DWLS4     5.8079996   YP.DWL34     5.8079996
    HLPPDFN   YP.DWL24     5.8079996   YP.DWLF4     5.8079996
    HLPPDFN   YP.DWLS3     2.3299999   YP.DWL33     2.3299999
    HLPPDFN   YP.DWL23     2.3299999   YP.DWLF3     2.3299999
    HLPPDFN   YP.DWLS2          .389   YP.DWL32          .389
    HLPPDFN   YP.DWL22          .389   YP.DWLF2          .389
    HLPPD2N   HLPSN3              1.   H.P2N               1.
    HLPPD2N   ..P.NE              1.   YP.ACRE             1.
    HLPPD2N   YP.DWLG.     19.201996   CRPSHO      -4.1819992
    HLPPD2N   CRP3HO      -2.5089998   CRP2HO      -1.2549992
    HLPPD2N   CDP2HO       .58099997   YP.DWLS8     .85899997
    HLPPD2N   YP.DWL38     .85899997   YP.DWL28     .85899997
    HLPPD2N   YP.DWLS7     .95799994   YP.DWL37     .95799994
    HLPPD2N   YP.DWL27     .95799994   YP.DWLS6     2.5269995
    HLPPD2N   YP.DWL36     2.5269995   YP.DWL26     2.5269995
    HLPPD2N   YP.DWLS5     6.3319998   YP.DWL35     6.3319998
    HLPPD2N   YP.DWL25     6.3319998   YP.DWLS4     5.8079996
    HLPPD2N   YP.DWL34     5.8079996   YP.DWL24     5.8079996
    HLPPD2N   YP.DWLS3     2.3299999   YP.DWL33     2.3299999
    HLPPD2N   YP.DWL23     2.3299999   YP.DWLS2          .389
    HLPPD2N   YP.DWL32          .389   YP.DWL22          .389
    HLPPD3N   HLPSN3              1.   H.P3N               1.
    HLPPD3N   ..P.NE              1.   YP.ACRE             1.
    HLPPD3N   YP.DWLG.     19.201996   CRPSHO      -4.1819992
    HLPPD3N   CRP3HO      -1.2549992   CDP3HO       .58099997
    HLPPD3N   YP.DWLS8     .85899997   YP.DWL38     .85899997
    HLPPD3N   YP.DWLS7     .95799994   YP.DWL37     .95799994
    HLPPD3N   YP.DWLS6     2.5269995   YP.DWL36     2.5269995
    HLPPD3N   YP.DWLS5     6.3319998   YP.DWL35     6.3319998
    HLPPD3N   YP.DWLS4     5.8079996   YP.DWL34     5.8079996
    HLPPD3N   YP.DWLS3     2.3299999   YP.DWL33     2.3299999
    HLPPD3N   YP.DWLS2          .389   YP.DWL32          .389
    HLPPDSN   HLPSN3              1.   H.PSN               1.
    HLPPDSN   ..P.NE              1.   YP.ACRE             1.
    HLPPDSN   YP.DWLG.     19.201996   CRPSHO      -2.0909996
    HLPPDSN   CDPSHO       .58099997   YP.DWLS8     .85899997
    HLPPDSN   YP.DWLS7     .95799994   YP.DWLS6     2.5269995
    HLPPDSN   YP.DWLS5     6.3319998   YP.DWLS4     5.8079996
    HLPPDSN   YP.DWLS3     2.3299999   YP.DWLS2          .389
    HLPGDFN   HLPSN4              1.   H.PFN               1.
    HLPGDFN   ..P.NE              1.   YP.ACRE             1.
    HLPGDFN   YP.DWLG.     17.376999   CRPSHO          -3.783
    HLPGDFN   CRP3HO      -2.2689991   CRP2HO      -2.2689991
    HLPGDFN   CRPFHO      -1.1339998   CDPFHO       .52599996
    HLPGDFN   YP.DWLS8     .52599996   YP.DWL38     .52599996
    HLPGDFN   YP.DWL28     .52599996   YP.DWLF8     .52599996
    HLPGDFN   YP.DWLS7     2.0089998   YP.DWL37     2.0089998
    HLPGDFN   YP.DWL27     2.0089998   YP.DWLF7     2.0089998
    HLPGDFN   YP.DWLS6     4.7929993   YP.DWL36     4.7929993
    HLPGDFN   YP.DWL26     4.7929993   YP.DWLF6     4.7929993
    HLPGDFN   YP.DWLS5     4.8989992   YP.DWL35     4.8989992
    HLPGDFN   YP.DWL25     4.8989992   YP.DWLF5     4.8989992
    HLPGDFN   YP.DWLS4         3.007   YP.DWL34         3.007
    HLPGDFN   YP.DWL24         3.007   YP.DWLF4         3.007
    HLPGDFN   YP.DWLS3     1.6309996   YP.DWL33     1.6309996
    HLPGDFN   YP.DWL23     1.6309996   YP.DWLF3     1.6309996
    HLPGDFN   YP.DWLS2     .51199996   YP.DWL32     .51199996
    HLPGDFN   YP.DWL22     .51199996   YP.DWLF2     .51199996
    HLPGD2N   HLPSN4              1.   H.P2N               1.
    HLPGD2N   ..P.NE              1.   YP.ACRE             1.
    HLPGD2N   YP.DWLG.     17.376999   CRPSHO          -3.783
    HLPGD2N   CRP3HO      -2.2689991   CRP2HO      -1.1349993
    HLPGD2N   CDP2HO       .52599996   YP.DWLS8     .52599996
    HLPGD2N   YP.DWL38     .52599996   YP.DWL28     .52599996
    HLPGD2N   YP.DWLS7     2.0089998   YP.DWL37     2.0089998
    HLPGD2N   YP.DWL27     2.0089998   YP.DWLS6     4.7929993
    HLPGD2N   YP.DWL36     4.7929993   YP.DWL26     4.7929993
    HLPGD2N   YP.DWLS5     4.8989992   YP.DWL35     4.8989992
    HLPGD2N   YP.DWL25     4.8989992   YP.DWLS4         3.007
    HLPGD2N   YP.DWL34         3.007   YP.DWL24         3.007
    HLPGD2N   YP.DWLS3     1.6309996   YP.DWL33     1.6309996
    HLPGD2N   YP.DWL23     1.6309996   YP.DWLS2     .51199996
    HLPGD2N   YP.DWL32     .51199996   YP.DWL22     .51199996
    HLPGD3N   HLPSN4              1.   H.P3N               1.
    HLPGD3N   ..P.NE              1.   YP.ACRE             1.
    HLPGD3N   YP.DWLG.     17.376999   CRPSHO          -3.783
    HLPGD3N   CRP3HO      -1.1349993   CDP3HO       .52599996
    HLPGD3N   YP.DWLS8     .52599996   YP.DWL38     .52599996
    HLPGD3N   YP.DWLS7     2.0089998   YP.DWL37     2.0089998
    HLPGD3N   YP.DWLS6     4.7929993   YP.DWL36     4.7929993
    HLPGD3N   YP.DWLS5     4.8989992   YP.DWL35     4.8989992
    HLPGD3N   YP.DWLS4         3.007   YP.DWL34         3.007
    HLPGD3N   YP.DWLS3     1.6309996   YP.DWL33     1.6309996
    HLPGD3N   YP.DWLS2     .51199996   YP.DWL32     .51199996
    HLPGDSN   HLPSN4              1.   H.PSN               1.
    HLPGDSN   ..P.NE              1.   YP.ACRE             1.
    HLPGDSN   YP.DWLG.     17.376999   CRPSHO      -1.8909998
    HLPGDSN   CDPSHO       .52599996   YP.DWLS8     .52599996
    HLPGDSN   YP.DWLS7     2.0089998   YP.DWLS6     4.7929993
    HLPGDSN   YP.DWLS5     4.8989992   YP.DWLS4         3.007
    HLPGDSN   YP.DWLS3     1.6309996   YP.DWLS2     .51199996
    HSPDDFR   HSPFT              -1.   HSP2T              -1.
    HSPDDFR   HSP3T              -1.   HSPST              -1.
    HSPDDFR   HSPSR               1.   YP.ACRE             1.
    HSPDDFR   YP.DWLG.        12.433   CRPSHO      -2.6069994
    HSPDDFR   CRP3HO      -1.5469999   CRP2HO      -1.5339994
    HSPDDFR   CRPFHO      -.76099998   CDPFHO       .37599999
    HSPDDFR   YP.DWLS8     .44999999   YP.DWL38     .44999999
    HSPDDFR   YP.DWL28     .44999999   YP.DWLF8     .44999999
    HSPDDFR   YP.DWLS7     .71399999   YP.DWL37     .71399999
    HSPDDFR   YP.DWL27     .71399999   YP.DWLF7     .71399999
    HSPDDFR   YP.DWLS6     5.4109993   YP.DWL36     5.4109993
    HSPDDFR   YP.DWL26     5.4109993   YP.DWLF6     5.4109993
    HSPDDFR   YP.DWLS5     2.7869997   YP.DWL35     2.7869997
    HSPDDFR   YP.DWL25     2.7869997   YP.DWLF5     2.7869997
    HSPDDFR   YP.DWLS4     2.2549992   YP.DWL34     2.2549992
    HSPDDFR   YP.DWL24     2.2549992   YP.DWLF4     2.2549992
    HSPDDFR   YP.DWLS3     .67299998   YP.DWL33     .67299998
    HSPDDFR   YP.DWL23     .67299998   YP.DWLF3     .67299998
    HSPDDFR   YP.DWLS2     .12099999   YP.DWL32     .12099999
    HSPDDFR   YP.DWL22     .12099999   YP.DWLF2     .12099999
    HSPDDFR   YP.DWLS1          .022   YP.DWL31          .022
    HSPDDFR   YP.DWL21          .022   YP.DWLF1          .022
    HSPDD2R   HSP2T              -1.   HSP3T              -1.
    HSPDD2R   HSPST              -1.   HSPSR               1.
    HSPDD2R   YP.ACRE             1.   YP.DWLG.        12.433
    HSPDD2R   CRPSHO      -2.6069994   CRP3HO      -1.5469999
    HSPDD2R   CRP2HO      -.76699996   CDP2HO       .37599999
    HSPDD2R   YP.DWLS8     .44999999   YP.DWL38     .44999999
    HSPDD2R   YP.DWL28     .44999999   YP.DWLS7     .71399999
    HSPDD2R   YP.DWL37     .71399999   YP.DWL27     .71399999
    HSPDD2R   YP.DWLS6     5.4109993   YP.DWL36     5.4109993
    HSPDD2R   YP.DWL26     5.4109993   YP.DWLS5     2.7869997
    HSPDD2R   YP.DWL35     2.7869997   YP.DWL25     2.7869997
    HSPDD2R   YP.DWLS4     2.2549992   YP.DWL34     2.2549992
    HSPDD2R   YP.DWL24     2.2549992   YP.DWLS3     .67299998
    HSPDD2R   YP.DWL33     .67299998   YP.DWL23     .67299998
    HSPDD2R   YP.DWLS2     .12099999   YP.DWL32     .12099999
    HSPDD2R   YP.DWL22     .12099999   YP.DWLS1          .022
    HSPDD2R   YP.DWL31          .022   YP.DWL21          .022
    HSPDD3R   HSP3T              -1.   HSPST              -1.
    HSPDD3R   HSPSR               1.   YP.ACRE             1.
    HSPDD3R   YP.DWLG.        12.433   CRPSHO      -2.6069994
    HSPDD3R   CRP3HO      -.77399999   CDP3HO       .37599999
    HSPDD3R   YP.DWLS8     .44999999   YP.DWL38     .44999999
    HSPDD3R   YP.DWLS7     .71399999   YP.DWL37     .71399999
    HSPDD3R   YP.DWLS6     5.4109993   YP.DWL36     5.4109993
    HSPDD3R   YP.DWLS5     2.7869997   YP.DWL35     2.7869997
    HSPDD3R   YP.DWLS4     2.2549992   YP.DWL34     2.2549992
    HSPDD3R   YP.DWLS3     .67299998   YP.DWL33     .67299998
    HSPDD3R   YP.DWLS2     .12099999   YP.DWL32     .12099999
    HSPDD3R   YP.DWLS1          .022   YP.DWL31          .022
    HSPDDSR   HSPST              -1.   HSPSR               1.
    HSPDDSR   YP.ACRE             1.   YP.DWLG.        12.433
    HSPDDSR   CRPSHO      -1.3039999   CDPSHO       .37599999
    HSPDDSR   YP.DWLS8     .44999999   YP.DWLS7     .71399999
    HSPDDSR   YP.DWLS6     5.4109993   YP.DWLS5     2.7869997
    HSPDDSR   YP.DWLS4     2.2549992   YP.DWLS3     .67299998
    HSPDDSR   YP.DWLS2     .12099999   YP.DWLS1          .022
    HSPIDFN   HSPSN1              1.   H.PFN               1.
    HSPIDFN   ..P.NE              1.   YP.ACRE             1.
    HSPIDFN   YP.DWLG.        15.596   CRPSHO      -3.3969994
    HSPIDFN   CRP3HO      -2.0379992   CRP2HO      -2.0379992
    HSPIDFN   CRPFHO      -1.0189991   CDPFHO       .47199994
    HSPIDFN   YP.DWLS8     .30199999   YP.DWL38     .30199999
    HSPIDFN   YP.DWL28     .30199999   YP.DWLF8     .30199999
    HSPIDFN   YP.DWLS7     .66399997   YP.DWL37     .66399997
    HSPIDFN   YP.DWL27     .66399997   YP.DWLF7     .66399997
    HSPIDFN   YP.DWLS6     4.8309994   YP.DWL36     4.8309994
    HSPIDFN   YP.DWL26     4.8309994   YP.DWLF6     4.8309994
    HSPIDFN   YP.DWLS5     6.3829994   YP.DWL35     6.3829994
    HSPIDFN   YP.DWL25     6.3829994   YP.DWLF5     6.3829994
    HSPIDFN   YP.DWLS4     2.4069996   YP.DWL34     2.4069996
    HSPIDFN   YP.DWL24     2.4069996   YP.DWLF4     2.4069996
    HSPIDFN   YP.DWLS3     1.0089998   YP.DWL33     1.0089998
    HSPIDFN   YP.DWL23     1.0089998   YP.DWLF3     1.0089998
    HSPID2N   HSPSN1              1.   H.P2N               1.
    HSPID2N   ..P.NE              1.   YP.ACRE             1.
    HSPID2N   YP.DWLG.        15.596   CRPSHO      -3.3969994
    HSPID2N   CRP3HO      -2.0379992   CRP2HO      -1.0189991
    HSPID2N   CDP2HO       .47199994   YP.DWLS8     .30199999
    HSPID2N   YP.DWL38     .30199999   YP.DWL28     .30199999
    HSPID2N   YP.DWLS7     .66399997   YP.DWL37     .66399997
    HSPID2N   YP.DWL27     .66399997   YP.DWLS6     4.8309994
    HSPID2N   YP.DWL36     4.8309994   YP.DWL26     4.8309994
    HSPID2N   YP.DWLS5     6.3829994   YP.DWL35     6.3829994
    HSPID2N   YP.DWL25     6.3829994   YP.DWLS4     2.4069996
    HSPID2N   YP.DWL34     2.4069996   YP.DWL24     2.4069996
    HSPID2N   YP.DWLS3     1.0089998   YP.DWL33     1.0089998
    HSPID2N   YP.DWL23     1.0089998
    HSPID3N   HSPSN1              1.   H.P3N               1.
    HSPID3N   ..P.NE              1.   YP.ACRE             1.
    HSPID3N   YP.DWLG.        15.596   CRPSHO      -3.3969994
    HSPID3N   CRP3HO      -1.0189991   CDP3HO       .47199994
    HSPID3N   YP.DWLS8     .30199999   YP.DWL38     .30199999
    HSPID3N   YP.DWLS7     .66399997   YP.DWL37     .66399997
    HSPID3N   YP.DWLS6     4.8309994   YP.DWL36     4.8309994
    HSPID3N   YP.DWLS5     6.3829994   YP.DWL35     6.3829994
    HSPID3N   YP.DWLS4     2.4069996   YP.DWL34     2.4069996
    HSPID3N   YP.DWLS3     1.0089998   YP.DWL33     1.0089998
    HSPIDSN   HSPSN1              1.   H.PSN               1.
    HSPIDSN   ..P.NE              1.   YP.ACRE             1.
    HSPIDSN   YP.DWLG.        15.596   CRPSHO          -1.698
    HSPIDSN   CDPSHO       .47199994   YP.DWLS8     .30199999
    HSPIDSN   YP.DWLS7     .66399997   YP.DWLS6     4.8309994
    HSPIDSN   YP.DWLS5     6.3829994   YP.DWLS4     2.4069996
    HSPIDSN   YP.DWLS3     1.0089998
    HSPIIFN   HSPSN1              1.   CRPSHO      -.37699997
    HSPIIFN   CRP3HO      -.22599995   CRP2HO      -.22599995
    HSPIIFN   CRPFHO      -.11299998   CEPFHO       1.5599995
    HSPIIFN   CTPFHO       4.6339998   CIPFHO       5.4659996
    HSPIIFN   YP.DWLS8    .058999997   YP.DWL38    .058999997
    HSPIIFN   YP.DWL28    .058999997   YP.DWLF8    .058999997
    HSPIIFN   YP.DWLS7     .30799997   YP.DWL37     .30799997
    HSPIIFN   YP.DWL27     .30799997   YP.DWLF7     .30799997
    HSPIIFN   YP.DWLS6     1.3339996   YP.DWL36     1.3339996
    HSPIIFN   YP.DWL26     1.3339996   YP.DWLF6     1.3339996
    HSPIIFN   YP.DWLS5    -.87699997   YP.DWL35    -.87699997
    HSPIIFN   YP.DWL25    -.87699997   YP.DWLF5    -.87699997
    HSPIIFN   YP.DWLS4    -.42399997   YP.DWL34    -.42399997
    HSPIIFN   YP.DWL24    -.42399997   YP.DWLF4    -.42399997
    HSPIIFN   YP.DWLS3         -.338   YP.DWL33         -.338
    HSPIIFN   YP.DWL23         -.338   YP.DWLF3         -.338
    HSPIIFN   YP.DWLS2   -.062999964   YP.DWL32   -.062999964
    HSPIIFN   YP.DWL22   -.062999964   YP.DWLF2   -.062999964
    HSPII2N   HSPSN1              1.   CRPSHO      -.37699997
    HSPII2N   CRP3HO      -.22599995   CRP2HO      -.11299998
    HSPII2N   CEP2HO       1.5599995   CTP2HO       4.6339998
    HSPII2N   CIP2HO       5.4659996   YP.DWLS8    .058999997
    HSPII2N   YP.DWL38    .058999997   YP.DWL28    .058999997
    HSPII2N   YP.DWLS7     .30799997   YP.DWL37     .30799997
    HSPII2N   YP.DWL27     .30799997   YP.DWLS6     1.3339996
    HSPII2N   YP.DWL36     1.3339996   YP.DWL26     1.3339996
    HSPII2N   YP.DWLS5    -.87699997   YP.DWL35    -.87699997
    HSPII2N   YP.DWL25    -.87699997   YP.DWLS4    -.42399997
    HSPII2N   YP.DWL34    -.42399997   YP.DWL24    -.42399997
    HSPII2N   YP.DWLS3         -.338   YP.DWL33         -.338
    HSPII2N   YP.DWL23         -.338   YP.DWLS2   -.062999964
    HSPII2N   YP.DWL32   -.062999964   YP.DWL22   -.062999964
    HSPII3N   HSPSN1              1.   CRPSHO      -.37699997
    HSPII3N   CRP3HO      -.11299998   CEP3HO       1.5599995
    HSPII3N   CTP3HO       4.6339998   CIP3HO       5.4659996
    HSPII3N   YP.DWLS8    .058999997   YP.DWL38    .058999997
    HSPII3N   YP.DWLS7     .30799997   YP.DWL37     .30799997
    HSPII3N   YP.DWLS6     1.3339996   YP.DWL36     1.3339996
    HSPII3N   YP.DWLS5    -.87699997   YP.DWL35    -.87699997
    HSPII3N   YP.DWLS4    -.42399997   YP.DWL34    -.42399997
    HSPII3N   YP.DWLS3         -.338   YP.DWL33         -.338
    HSPII3N   YP.DWLS2   -.062999964   YP.DWL32   -.062999964
    HSPIISN   HSPSN1              1.   CRPSHO      -.18899995
    HSPIISN   CEPSHO       1.5599995   CTPSHO       4.6339998
    HSPIISN   CIPSHO       5.4659996   YP.DWLS8    .058999997
    HSPIISN   YP.DWLS7     .30799997   YP.DWLS6     1.3339996
    HSPIISN   YP.DWLS5    -.87699997   YP.DWLS4    -.42399997
    HSPIISN   YP.DWLS3         -.338   YP.DWLS2   -.062999964
    HSPCDFN   HSPSN2              1.   H.PFN               1.
    HSPCDFN   ..P.NE              1.   YP.ACRE             1.
    HSPCDFN   YP.DWLG.        15.164   CRPSHO      -3.3029995
    HSPCDFN   CRP3HO      -1.9819994   CRP2HO      -1.9819994
    HSPCDFN   CRPFHO           -.991   CDPFHO       .45899999
    HSPCDFN   YP.DWLS8        12.046   YP.DWL38        12.046
    HSPCDFN   YP.DWL28        12.046   YP.DWLF8        12.046
    HSPCDFN   YP.DWLS7     1.4829998   YP.DWL37     1.4829998
    HSPCDFN   YP.DWL27     1.4829998   YP.DWLF7     1.4829998
    HSPCDFN   YP.DWLS6     1.5599995   YP.DWL36     1.5599995
    HSPCDFN   YP.DWL26     1.5599995   YP.DWLF6     1.5599995
    HSPCDFN   YP.DWLS5    .074999988   YP.DWL35    .074999988
    HSPCDFN   YP.DWL25    .074999988   YP.DWLF5    .074999988
    HSPCD2N   HSPSN2              1.   H.P2N               1.
    HSPCD2N   ..P.NE              1.   YP.ACRE             1.
    HSPCD2N   YP.DWLG.        15.164   CRPSHO      -3.3029995
    HSPCD2N   CRP3HO      -1.9819994   CRP2HO           -.991
    HSPCD2N   CDP2HO       .45899999   YP.DWLS8        12.046
    HSPCD2N   YP.DWL38        12.046   YP.DWL28        12.046
    HSPCD2N   YP.DWLS7     1.4829998   YP.DWL37     1.4829998
    HSPCD2N   YP.DWL27     1.4829998   YP.DWLS6     1.5599995
    HSPCD2N   YP.DWL36     1.5599995   YP.DWL26     1.5599995
    HSPCD2N   YP.DWLS5    .074999988   YP.DWL35    .074999988
    HSPCD2N   YP.DWL25    .074999988
    HSPCD3N   HSPSN2              1.   H.P3N               1.
    HSPCD3N   ..P.NE              1.   YP.ACRE             1.
    HSPCD3N   YP.DWLG.        15.164   CRPSHO      -3.3029995
    HSPCD3N   CRP3HO           -.991   CDP3HO       .45899999
    HSPCD3N   YP.DWLS8        12.046   YP.DWL38        12.046
    HSPCD3N   YP.DWLS7     1.4829998   YP.DWL37     1.4829998
    HSPCD3N   YP.DWLS6     1.5599995   YP.DWL36     1.5599995
    HSPCD3N   YP.DWLS5    .074999988   YP.DWL35    .074999988
    HSPCDSN   HSPSN2              1.   H.PSN               1.
    HSPCDSN   ..P.NE              1.   YP.ACRE             1.
    HSPCDSN   YP.DWLG.        15.164   CRPSHO      -1.6509991
    HSPCDSN   CDPSHO       .45899999   YP.DWLS8        12.046
    HSPCDSN   YP.DWLS7     1.4829998   YP.DWLS6     1.5599995
    HSPCDSN   YP.DWLS5    .074999988
    HSPCCFN   HSPSN2              1.   CRPSHO       2.8199997
    HSPCCFN   CRP3HO       1.6919994   CRP2HO       1.6919994
    HSPCCFN   CRPFHO       .84599996   CEPFHO       1.5159998
    HSPCCFN   CTPFHO       6.8029995   CCPFHO        16.83699
    HSPCCFN   YP.DWLG.    -16.463989   YP.DWLS8        12.046
    HSPCCFN   YP.DWL38        12.046   YP.DWL28        12.046
    HSPCCFN   YP.DWLF8        12.046   YP.DWLS7     1.4829998
    HSPCCFN   YP.DWL37     1.4829998   YP.DWL27     1.4829998
    HSPCCFN   YP.DWLF7     1.4829998   YP.DWLS6   -.039999999
    HSPCCFN   YP.DWL36   -.039999999   YP.DWL26   -.039999999
    HSPCCFN   YP.DWLF6   -.039999999   YP.DWLS5    -5.3729992
    HSPCCFN   YP.DWL35    -5.3729992   YP.DWL25    -5.3729992
    HSPCCFN   YP.DWLF5    -5.3729992   YP.DWLS4       -15.544
    HSPCCFN   YP.DWL34       -15.544   YP.DWL24       -15.544
    HSPCCFN   YP.DWLF4       -15.544   YP.DWLS3    -8.2639999
    HSPCCFN   YP.DWL33    -8.2639999   YP.DWL23    -8.2639999
    HSPCCFN   YP.DWLF3    -8.2639999   YP.DWLS2    -.77299994
    HSPCCFN   YP.DWL32    -.77299994   YP.DWL22    -.77299994
    HSPCCFN   YP.DWLF2    -.77299994
    HSPCC2N   HSPSN2              1.   CRPSHO       2.8199997
    HSPCC2N   CRP3HO       1.6919994   CRP2HO       .84599996
    HSPCC2N   CEP2HO       1.5159998   CTP2HO       6.8029995
    HSPCC2N   CCP2HO        16.83699   YP.DWLG.    -16.463989
    HSPCC2N   YP.DWLS8        12.046   YP.DWL38        12.046
    HSPCC2N   YP.DWL28        12.046   YP.DWLS7     1.4829998
    HSPCC2N   YP.DWL37     1.4829998   YP.DWL27     1.4829998
    HSPCC2N   YP.DWLS6   -.039999999   YP.DWL36   -.039999999
    HSPCC2N   YP.DWL26   -.039999999   YP.DWLS5    -5.3729992
    HSPCC2N   YP.DWL35    -5.3729992   YP.DWL25    -5.3729992
    HSPCC2N   YP.DWLS4       -15.544   YP.DWL34       -15.544
    HSPCC2N   YP.DWL24       -15.544   YP.DWLS3    -8.2639999
    HSPCC2N   YP.DWL33    -8.2639999   YP.DWL23    -8.2639999
    HSPCC2N   YP.DWLS2    -.77299994   YP.DWL32    -.77299994
    HSPCC2N   YP.DWL22    -.77299994
    HSPCC3N   HSPSN2              1.   CRPSHO       2.8199997
    HSPCC3N   CRP3HO       .84599996   CEP3HO       1.5159998
    HSPCC3N   CTP3HO       6.8029995   CCP3HO        16.83699
    HSPCC3N   YP.DWLG.    -16.463989   YP.DWLS8        12.046
    HSPCC3N   YP.DWL38        12.046   YP.DWLS7     1.4829998
    HSPCC3N   YP.DWL37     1.4829998   YP.DWLS6   -.039999999
    HSPCC3N   YP.DWL36   -.039999999   YP.DWLS5    -5.3729992
    HSPCC3N   YP.DWL35    -5.3729992   YP.DWLS4       -15.544
    HSPCC3N   YP.DWL34       -15.544   YP.DWLS3    -8.2639999
    HSPCC3N   YP.DWL33    -8.2639999   YP.DWLS2    -.77299994
    HSPCC3N   YP.DWL32    -.77299994
    HSPCCSN   HSPSN2              1.   CRPSHO       1.4099998
    HSPCCSN   CEPSHO       1.5159998   CTPSHO       6.8029995
    HSPCCSN   CCPSHO        16.83699   YP.DWLG.    -16.463989
    HSPCCSN   YP.DWLS8        12.046   YP.DWLS7     1.4829998
    HSPCCSN   YP.DWLS6   -.039999999   YP.DWLS5    -5.3729992
    HSPCCSN   YP.DWLS4       -15.544   YP.DWLS3    -8.2639999
    HSPCCSN   YP.DWLS2    -.77299994
    HSPPDFN   HSPSN3              1.   H.PFN               1.
    HSPPDFN   ..P.NE              1.   YP.ACRE             1.
    HSPPDFN   YP.DWLG.        12.344   CRPSHO      -2.5209999
    HSPPDFN   CRP3HO      -1.4839993   CRP2HO      -1.4629993
    HSPPDFN   CRPFHO      -.72099996   CDPFHO       .37299997
    HSPPDFN   YP.DWLS7     .64299995   YP.DWL37     .64299995
    HSPPDFN   YP.DWL27     .64299995   YP.DWLF7     .64299995
    HSPPDFN   YP.DWLS6     3.8809996   YP.DWL36     3.8809996
    HSPPDFN   YP.DWL26     3.8809996   YP.DWLF6     3.8809996
    HSPPDFN   YP.DWLS5     2.2879992   YP.DWL35     2.2879992
    HSPPDFN   YP.DWL25     2.2879992   YP.DWLF5     2.2879992
    HSPPDFN   YP.DWLS4         4.415   YP.DWL34         4.415
    HSPPDFN   YP.DWL24         4.415   YP.DWLF4         4.415
    HSPPDFN   YP.DWLS3     1.1169996   YP.DWL33     1.1169996
    HSPPDFN   YP.DWL23     1.1169996   YP.DWLF3     1.1169996
    HSPPD2N   HSPSN3              1.   H.P2N               1.
    HSPPD2N   ..P.NE              1.   YP.ACRE             1.
    HSPPD2N   YP.DWLG.        12.344   CRPSHO      -2.5209999
    HSPPD2N   CRP3HO      -1.4839993   CRP2HO      -.73099995
    HSPPD2N   CDP2HO       .37299997   YP.DWLS7     .64299995
    HSPPD2N   YP.DWL37     .64299995   YP.DWL27     .64299995
    HSPPD2N   YP.DWLS6     3.8809996   YP.DWL36     3.8809996
    HSPPD2N   YP.DWL26     3.8809996   YP.DWLS5     2.2879992
    HSPPD2N   YP.DWL35     2.2879992   YP.DWL25     2.2879992
    HSPPD2N   YP.DWLS4         4.415   YP.DWL34         4.415
    HSPPD2N   YP.DWL24         4.415   YP.DWLS3     1.1169996
    HSPPD2N   YP.DWL33     1.1169996   YP.DWL23     1.1169996
    HSPPD3N   HSPSN3              1.   H.P3N               1.
    HSPPD3N   ..P.NE              1.   YP.ACRE             1.
    HSPPD3N   YP.DWLG.        12.344   CRPSHO      -2.5209999
    HSPPD3N   CRP3HO      -.74199998   CDP3HO       .37299997
    HSPPD3N   YP.DWLS7     .64299995   YP.DWL37     .64299995
    HSPPD3N   YP.DWLS6     3.8809996   YP.DWL36     3.8809996
    HSPPD3N   YP.DWLS5     2.2879992   YP.DWL35     2.2879992
    HSPPD3N   YP.DWLS4         4.415   YP.DWL34         4.415
    HSPPD3N   YP.DWLS3     1.1169996   YP.DWL33     1.1169996
    HSPPDSN   HSPSN3              1.   H.PSN               1.
    HSPPDSN   ..P.NE              1.   YP.ACRE             1.
    HSPPDSN   YP.DWLG.        12.344   CRPSHO      -1.2609997
    HSPPDSN   CDPSHO       .37299997   YP.DWLS7     .64299995
    HSPPDSN   YP.DWLS6     3.8809996   YP.DWLS5     2.2879992
    HSPPDSN   YP.DWLS4         4.415   YP.DWLS3     1.1169996
    HSPGDFN   HSPSN4              1.   H.PFN               1.
    HSPGDFN   ..P.NE              1.   YP.ACRE             1.
    HSPGDFN   YP.DWLG.        14.039   CRPSHO      -2.9279995
    HSPGDFN   CRP3HO      -1.7339993   CRP2HO      -1.7179995
    HSPGDFN   CRPFHO      -.84999996   CDPFHO       .42499995
    HSPGDFN   YP.DWLS8     .18199998   YP.DWL38     .18199998
    HSPGDFN   YP.DWL28     .18199998   YP.DWLF8     .18199998
    HSPGDFN   YP.DWLS7     .71399999   YP.DWL37     .71399999
    HSPGDFN   YP.DWL27     .71399999   YP.DWLF7     .71399999
    HSPGDFN   YP.DWLS6     6.1199999   YP.DWL36     6.1199999
    HSPGDFN   YP.DWL26     6.1199999   YP.DWLF6     6.1199999
    HSPGDFN   YP.DWLS5     3.2609997   YP.DWL35     3.2609997
    HSPGDFN   YP.DWL25     3.2609997   YP.DWLF5     3.2609997
    HSPGDFN   YP.DWLS4     2.6739998   YP.DWL34     2.6739998
    HSPGDFN   YP.DWL24     2.6739998   YP.DWLF4     2.6739998
    HSPGDFN   YP.DWLS3     .88799995   YP.DWL33     .88799995
    HSPGDFN   YP.DWL23     .88799995   YP.DWLF3     .88799995
    HSPGDFN   YP.DWLS2     .17399997   YP.DWL32     .17399997
    HSPGDFN   YP.DWL22     .17399997   YP.DWLF2     .17399997
    HSPGDFN   YP.DWLS1    .025999997   YP.DWL31    .025999997
    HSPGDFN   YP.DWL21    .025999997   YP.DWLF1    .025999997
    HSPGD2N   HSPSN4              1.   H.P2N               1.
    HSPGD2N   ..P.NE              1.   YP.ACRE             1.
    HSPGD2N   YP.DWLG.        14.039   CRPSHO      -2.9279995
    HSPGD2N   CRP3HO      -1.7339993   CRP2HO      -.85899997
    HSPGD2N   CDP2HO       .42499995   YP.DWLS8     .18199998
    HSPGD2N   YP.DWL38     .18199998   YP.DWL28     .18199998
    HSPGD2N   YP.DWLS7     .71399999   YP.DWL37     .71399999
    HSPGD2N   YP.DWL27     .71399999   YP.DWLS6     6.1199999
    HSPGD2N   YP.DWL36     6.1199999   YP.DWL26     6.1199999
    HSPGD2N   YP.DWLS5     3.2609997   YP.DWL35     3.2609997
    HSPGD2N   YP.DWL25     3.2609997   YP.DWLS4     2.6739998
    HSPGD2N   YP.DWL34     2.6739998   YP.DWL24     2.6739998
    HSPGD2N   YP.DWLS3     .88799995   YP.DWL33     .88799995
    HSPGD2N   YP.DWL23     .88799995   YP.DWLS2     .17399997
    HSPGD2N   YP.DWL32     .17399997   YP.DWL22     .17399997
    HSPGD2N   YP.DWLS1    .025999997   YP.DWL31    .025999997
    HSPGD2N   YP.DWL21    .025999997
    HSPGD3N   HSPSN4              1.   H.P3N               1.
    HSPGD3N   ..P.NE              1.   YP.ACRE             1.
    HSPGD3N   YP.DWLG.        14.039   CRPSHO      -2.9279995
    HSPGD3N   CRP3HO      -.86699998   CDP3HO       .42499995
    HSPGD3N   YP.DWLS8     .18199998   YP.DWL38     .18199998
    HSPGD3N   YP.DWLS7     .71399999   YP.DWL37     .71399999
    HSPGD3N   YP.DWLS6     6.1199999   YP.DWL36     6.1199999
    HSPGD3N   YP.DWLS5     3.2609997   YP.DWL35     3.2609997
    HSPGD3N   YP.DWLS4     2.6739998   YP.DWL34     2.6739998
    HSPGD3N   YP.DWLS3     .88799995   YP.DWL33     .88799995
    HSPGD3N   YP.DWLS2     .17399997   YP.DWL32     .17399997
    HSPGD3N   YP.DWLS1    .025999997   YP.DWL31    .025999997
    HSPGDSN   HSPSN4              1.   H.PSN               1.
    HSPGDSN   ..P.NE              1.   YP.ACRE             1.
    HSPGDSN   YP.DWLG.        14.039   CRPSHO      -1.4639997
    HSPGDSN   CDPSHO       .42499995   YP.DWLS8     .18199998
    HSPGDSN   YP.DWLS7     .71399999   YP.DWLS6     6.1199999
    HSPGDSN   YP.DWLS5     3.2609997   YP.DWLS4     2.6739998
    HSPGDSN   YP.DWLS3     .88799995   YP.DWLS2     .17399997
    HSPGDSN   YP.DWLS1    .025999997
    HNPHRFN   .HPFN               1.   ..P.NI              1.
    HNPHRFN   YP.ACRE            -1.   CSPFHN       13.153999
    HNPHRFN   CBPFHN       123.44099   CRPSHN       4.4649992
    HNPHRFN   CRP3HN       2.5049992   CRP2HN       2.3739996
    HNPHRFN   CRPFHN       1.1219997   YP.FHR             -1.
    HNPHR2N   .HP2N               1.   ..P.NI              1.
    HNPHR2N   YP.ACRE            -1.   CSP2HN       13.153999
    HNPHR2N   CBP2HN       123.44099   CRPSHN       4.2469997
    HNPHR2N   CRP3HN       2.3739996   CRP2HN       1.1219997
    HNPHR2N   YP.2HR             -1.
    HNPHR3N   .HP3N               1.   ..P.NI              1.
    HNPHR3N   YP.ACRE            -1.   CSP3HN       13.153999
    HNPHR3N   CBP3HN       123.44099   CRPSHN       4.0289993
    HNPHR3N   CRP3HN       1.1219997   YP.3HR             -1.
    HNPHRSN   .HPSN               1.   ..P.NI              1.
    HNPHRSN   YP.ACRE            -1.   CSPSHN       13.153999
    HNPHRSN   CBPSHN       123.44099   CRPSHN       1.9059992
    HNPHRSN   YP.SHR             -1.
    HNPLRFN   .HPFN               1.   ..P.NI              1.
    HNPLRFN   YP.ACRE            -1.   CSPFHN       10.726999
    HNPLRFN   CBPFHN       51.781998   CRPSHN       2.2319994
    HNPLRFN   CRP3HN       1.2519999   CRP2HN       1.1869993
    HNPLRFN   CRPFHN       .56099999   YP.FLR             -1.
    HNPLR2N   .HP2N               1.   ..P.NI              1.
    HNPLR2N   YP.ACRE            -1.   CSP2HN       10.726999
    HNPLR2N   CBP2HN       51.781998   CRPSHN       2.1239996
    HNPLR2N   CRP3HN       1.1869993   CRP2HN       .56099999
    HNPLR2N   YP.2LR             -1.
    HNPLR3N   .HP3N               1.   ..P.NI              1.
    HNPLR3N   YP.ACRE            -1.   CSP3HN       10.726999
    HNPLR3N   CBP3HN       51.781998   CRPSHN       2.0149994
    HNPLR3N   CRP3HN       .56099999   YP.3LR             -1.
    HNPLRSN   .HPSN               1.   ..P.NI              1.
    HNPLRSN   YP.ACRE            -1.   CSPSHN       10.726999
    HNPLRSN   CBPSHN       51.781998   CRPSHN       .95299995
    HNPLRSN   YP.SLR             -1.
    HNPHVFN   LVPFA               1.   LVPSN               1.
    HNPHVFN   YP.ACRE            -1.   CSPFHN       8.7699995
    HNPHVFN   CBPFHN       117.56299   CRPSHN       4.4649992
    HNPHVFN   CRP3HN       2.5049992   CRP2HN       2.3739996
    HNPHVFN   CRPFHN       1.1219997   LVPSN2              1.
    HNPHVFN   YP.FHV             -1.
    HNPHV2N   LVP2A               1.   LVPSN               1.
    HNPHV2N   YP.ACRE            -1.   CSP2HN       8.7699995
    HNPHV2N   CBP2HN       117.56299   CRPSHN       4.2469997
    HNPHV2N   CRP3HN       2.3739996   CRP2HN       1.1219997
    HNPHV2N   LVPSN2              1.   YP.2HV             -1.
    HNPHV3N   LVP3A               1.   LVPSN               1.
    HNPHV3N   YP.ACRE            -1.   CSP3HN       8.7699995
    HNPHV3N   CBP3HN       117.56299   CRPSHN       4.0289993
    HNPHV3N   CRP3HN       1.1219997   LVPSN2              1.
    HNPHV3N   YP.3HV             -1.
    HNPHVSN   LVPSA               1.   LVPSN               1.
    HNPHVSN   YP.ACRE            -1.   CSPSHN       8.7699995
    HNPHVSN   CBPSHN       117.56299   CRPSHN       1.9059992
    HNPHVSN   LVPSN2              1.   YP.SHV             -1.
    HNPLVFN   LVPFA               1.   LVPSN               1.
    HNPLVFN   YP.ACRE            -1.   CSPFHN       7.1509991
    HNPLVFN   CBPFHN       49.315994   CRPSHN       2.2319994
    HNPLVFN   CRP3HN       1.2519999   CRP2HN       1.1869993
    HNPLVFN   CRPFHN       .56099999   LVPSN2              1.
    HNPLVFN   YP.FLV             -1.
    HNPLV2N   LVP2A               1.   LVPSN               1.
    HNPLV2N   YP.ACRE            -1.   CSP2HN       7.1509991
    HNPLV2N   CBP2HN       49.315994   CRPSHN       2.1239996
    HNPLV2N   CRP3HN       1.1869993   CRP2HN       .56099999
    HNPLV2N   LVPSN2              1.   YP.2LV             -1.
    HNPLV3N   LVP3A               1.   LVPSN               1.
    HNPLV3N   YP.ACRE            -1.   CSP3HN       7.1509991
    HNPLV3N   CBP3HN       49.315994   CRPSHN       2.0149994
    HNPLV3N   CRP3HN       .56099999   LVPSN2              1.
    HNPLV3N   YP.3LV             -1.
    HNPLVSN   LVPSA               1.   LVPSN               1.
    HNPLVSN   YP.ACRE            -1.   CSPSHN       7.1509991
    HNPLVSN   CBPSHN       49.315994   CRPSHN       .95299995
    HNPLVSN   LVPSN2              1.   YP.SLV             -1.
    H1PHRFN   YP.FHR              1.   YP.DWLS1         -120.
    H1PHRFN   YP.DWL31         -120.   YP.DWL21         -120.
    H1PHRFN   YP.DWLF1         -120.   YP.DWLG.         -120.
    H1PHR2N   YP.2HR              1.   YP.DWLS1         -120.
    H1PHR2N   YP.DWL31         -120.   YP.DWL21         -120.
    H1PHR2N   YP.DWLG.         -120.
    H1PHR3N   YP.3HR              1.   YP.DWLS1         -120.
    H1PHR3N   YP.DWL31         -120.   YP.DWLG.         -120.
    H1PHRSN   YP.SHR              1.   YP.DWLS1         -120.
    H1PHRSN   YP.DWLG.         -120.
    H2PHRFN   YP.FHR              1.   YP.DWLS2          -60.
    H2PHRFN   YP.DWL32          -60.   YP.DWL22          -60.
    H2PHRFN   YP.DWLF2          -60.   YP.DWLG.          -60.
    H2PHR2N   YP.2HR              1.   YP.DWLS2          -60.
    H2PHR2N   YP.DWL32          -60.   YP.DWL22          -60.
    H2PHR2N   YP.DWLG.          -60.
    H2PHR3N   YP.3HR              1.   YP.DWLS2          -60.
    H2PHR3N   YP.DWL32          -60.   YP.DWLG.          -60.
    H2PHRSN   YP.SHR              1.   YP.DWLS2          -60.
    H2PHRSN   YP.DWLG.          -60.
    H3PHRFN   YP.FHR              1.   YP.DWLS3          -40.
    H3PHRFN   YP.DWL33          -40.   YP.DWL23          -40.
    H3PHRFN   YP.DWLF3          -40.   YP.DWLG.          -40.
    H3PHR2N   YP.2HR              1.   YP.DWLS3          -40.
    H3PHR2N   YP.DWL33          -40.   YP.DWL23          -40.
    H3PHR2N   YP.DWLG.          -40.
    H3PHR3N   YP.3HR              1.   YP.DWLS3          -40.
    H3PHR3N   YP.DWL33          -40.   YP.DWLG.          -40.
    H3PHRSN   YP.SHR              1.   YP.DWLS3          -40.
    H3PHRSN   YP.DWLG.          -40.
    H4PHRFN   YP.FHR              1.   YP.DWLS4          -30.
    H4PHRFN   YP.DWL34          -30.   YP.DWL24          -30.
    H4PHRFN   YP.DWLF4          -30.   YP.DWLG.          -30.
    H4PHR2N   YP.2HR              1.   YP.DWLS4          -30.
    H4PHR2N   YP.DWL34          -30.   YP.DWL24          -30.
    H4PHR2N   YP.DWLG.          -30.
    H4PHR3N   YP.3HR              1.   YP.DWLS4          -30.
    H4PHR3N   YP.DWL34          -30.   YP.DWLG.          -30.
    H4PHRSN   YP.SHR              1.   YP.DWLS4          -30.
    H4PHRSN   YP.DWLG.          -30.
    H5PHRFN   YP.FHR              1.   YP.DWLS5          -24.
    H5PHRFN   YP.DWL35          -24.   YP.DWL25          -24.
    H5PHRFN   YP.DWLF5          -24.   YP.DWLG.          -24.
    H5PHR2N   YP.2HR              1.   YP.DWLS5          -24.
    H5PHR2N   YP.DWL35          -24.   YP.DWL25          -24.
    H5PHR2N   YP.DWLG.          -24.
    H5PHR3N   YP.3HR              1.   YP.DWLS5          -24.
    H5PHR3N   YP.DWL35          -24.   YP.DWLG.          -24.
    H5PHRSN   YP.SHR              1.   YP.DWLS5          -24.
    H5PHRSN   YP.DWLG.          -24.
    H6PHRFN   YP.FHR              1.   YP.DWLS6          -20.
    H6PHRFN   YP.DWL36          -20.   YP.DWL26          -20.
    H6PHRFN   YP.DWLF6          -20.   YP.DWLG.          -20.
    H6PHR2N   YP.2HR              1.   YP.DWLS6          -20.
    H6PHR2N   YP.DWL36          -20.   YP.DWL26          -20.
    H6PHR2N   YP.DWLG.          -20.
    H6PHR3N   YP.3HR              1.   YP.DWLS6          -20.
    H6PHR3N   YP.DWL36          -20.   YP.DWLG.          -20.
    H6PHRSN   YP.SHR              1.   YP.DWLS6          -20.
    H6PHRSN   YP.DWLG.          -20.
    H7PHRFN   YP.FHR              1.   YP.DWLS7     -17.14299
    H7PHRFN   YP.DWL37     -17.14299   YP.DWL27     -17.14299
    H7PHRFN   YP.DWLF7     -17.14299   YP.DWLG.     -17.14299
    H7PHR2N   YP.2HR              1.   YP.DWLS7     -17.14299
    H7PHR2N   YP.DWL37     -17.14299   YP.DWL27     -17.14299
    H7PHR2N   YP.DWLG.     -17.14299
    H7PHR3N   YP.3HR              1.   YP.DWLS7     -17.14299
    H7PHR3N   YP.DWL37     -17.14299   YP.DWLG.     -17.14299
    H7PHRSN   YP.SHR              1.   YP.DWLS7     -17.14299
    H7PHRSN   YP.DWLG.     -17.14299
    H8PHRFN   YP.FHR              1.   YP.DWLS8          -15.
    H8PHRFN   YP.DWL38          -15.   YP.DWL28          -15.
    H8PHRFN   YP.DWLF8          -15.   YP.DWLG.          -15.
    H8PHR2N   YP.2HR              1.   YP.DWLS8          -15.
    H8PHR2N   YP.DWL38          -15.   YP.DWL28          -15.
    H8PHR2N   YP.DWLG.          -15.
    H8PHR3N   YP.3HR              1.   YP.DWLS8          -15.
    H8PHR3N   YP.DWL38          -15.   YP.DWLG.          -15.
    H8PHRSN   YP.SHR              1.   YP.DWLS8          -15.
    H8PHRSN   YP.DWLG.          -15.
    H1PLRFN   YP.FLR              1.   YP.DWLF1          -60.
    H1PLRFN   YP.DWL21          -60.   YP.DWL31          -60.
    H1PLRFN   YP.DWLS1          -60.   YP.DWLG.          -60.
    H1PLR2N   YP.2LR              1.   YP.DWL21          -60.
    H1PLR2N   YP.DWL31          -60.   YP.DWLS1          -60.
    H1PLR2N   YP.DWLG.          -60.
    H1PLR3N   YP.3LR              1.   YP.DWL31          -60.
    H1PLR3N   YP.DWLS1          -60.   YP.DWLG.          -60.
    H1PLRSN   YP.SLR              1.   YP.DWLS1          -60.
    H1PLRSN   YP.DWLG.          -60.
    H2PLRFN   YP.FLR              1.   YP.DWLF2          -30.
    H2PLRFN   YP.DWL22          -30.   YP.DWL32          -30.
    H2PLRFN   YP.DWLS2          -30.   YP.DWLG.          -30.
    H2PLR2N   YP.2LR              1.   YP.DWL22          -30.
    H2PLR2N   YP.DWL32          -30.   YP.DWLS2          -30.
    H2PLR2N   YP.DWLG.          -30.
    H2PLR3N   YP.3LR              1.   YP.DWL32          -30.
    H2PLR3N   YP.DWLS2          -30.   YP.DWLG.          -30.
    H2PLRSN   YP.SLR              1.   YP.DWLS2          -30.
    H2PLRSN   YP.DWLG.          -30.
    H3PLRFN   YP.FLR              1.   YP.DWLF3          -20.
    H3PLRFN   YP.DWL23          -20.   YP.DWL33          -20.
    H3PLRFN   YP.DWLS3          -20.   YP.DWLG.          -20.
    H3PLR2N   YP.2LR              1.   YP.DWL23          -20.
    H3PLR2N   YP.DWL33          -20.   YP.DWLS3          -20.
    H3PLR2N   YP.DWLG.          -20.
    H3PLR3N   YP.3LR              1.   YP.DWL33          -20.
    H3PLR3N   YP.DWLS3          -20.   YP.DWLG.          -20.
    H3PLRSN   YP.SLR              1.   YP.DWLS3          -20.
    H3PLRSN   YP.DWLG.          -20.
    H4PLRFN   YP.FLR              1.   YP.DWLF4          -15.
    H4PLRFN   YP.DWL24          -15.   YP.DWL34          -15.
    H4PLRFN   YP.DWLS4          -15.   YP.DWLG.          -15.
    H4PLR2N   YP.2LR              1.   YP.DWL24          -15.
    H4PLR2N   YP.DWL34          -15.   YP.DWLS4          -15.
    H4PLR2N   YP.DWLG.          -15.
    H4PLR3N   YP.3LR              1.   YP.DWL34          -15.
    H4PLR3N   YP.DWLS4          -15.   YP.DWLG.          -15.
    H4PLRSN   YP.SLR              1.   YP.DWLS4          -15.
    H4PLRSN   YP.DWLG.          -15.
    H5PLRFN   YP.FLR              1.   YP.DWLF5          -12.
    H5PLRFN   YP.DWL25          -12.   YP.DWL35          -12.
    H5PLRFN   YP.DWLS5          -12.   YP.DWLG.          -12.
    H5PLR2N   YP.2LR              1.   YP.DWL25          -12.
    H5PLR2N   YP.DWL35          -12.   YP.DWLS5          -12.
    H5PLR2N   YP.DWLG.          -12.
    H5PLR3N   YP.3LR              1.   YP.DWL35          -12.
    H5PLR3N   YP.DWLS5          -12.   YP.DWLG.          -12.
    H5PLRSN   YP.SLR              1.   YP.DWLS5          -12.
    H5PLRSN   YP.DWLG.          -12.
    H6PLRFN   YP.FLR              1.   YP.DWLF6          -10.
    H6PLRFN   YP.DWL26          -10.   YP.DWL36          -10.
    H6PLRFN   YP.DWLS6          -10.   YP.DWLG.          -10.
    H6PLR2N   YP.2LR              1.   YP.DWL26          -10.
    H6PLR2N   YP.DWL36          -10.   YP.DWLS6          -10.
    H6PLR2N   YP.DWLG.          -10.
    H6PLR3N   YP.3LR              1.   YP.DWL36          -10.
    H6PLR3N   YP.DWLS6          -10.   YP.DWLG.          -10.
    H6PLRSN   YP.SLR              1.   YP.DWLS6          -10.
    H6PLRSN   YP.DWLG.          -10.
    H7PLRFN   YP.FLR              1.   YP.DWLF7    -8.5709991
    H7PLRFN   YP.DWL27    -8.5709991   YP.DWL37    -8.5709991
    H7PLRFN   YP.DWLS7    -8.5709991   YP.DWLG.    -8.5709991
    H7PLR2N   YP.2LR              1.   YP.DWL27    -8.5709991
    H7PLR2N   YP.DWL37    -8.5709991   YP.DWLS7    -8.5709991
    H7PLR2N   YP.DWLG.    -8.5709991
    H7PLR3N   YP.3LR              1.   YP.DWL37    -8.5709991
    H7PLR3N   YP.DWLS7    -8.5709991   YP.DWLG.    -8.5709991
    H7PLRSN   YP.SLR              1.   YP.DWLS7    -8.5709991
    H7PLRSN   YP.DWLG.    -8.5709991
    H8PLRFN   YP.FLR              1.   YP.DWLF8          -7.5
    H8PLRFN   YP.DWL28          -7.5   YP.DWL38          -7.5
    H8PLRFN   YP.DWLS8          -7.5   YP.DWLG.          -7.5
    H8PLR2N   YP.2LR              1.   YP.DWL28          -7.5
    H8PLR2N   YP.DWL38          -7.5   YP.DWLS8          -7.5
    H8PLR2N   YP.DWLG.          -7.5
    H8PLR3N   YP.3LR              1.   YP.DWL38          -7.5
    H8PLR3N   YP.DWLS8          -7.5   YP.DWLG.          -7.5
    H8PLRSN   YP.SLR              1.   YP.DWLS8          -7.5
    H8PLRSN   YP.DWLG.          -7.5
    H1PHVFN   YP.FHV              1.   YP.DWLS1         -120.
    H1PHVFN   YP.DWL31         -120.   YP.DWL21         -120.
    H1PHVFN   YP.DWLF1         -120.   YP.DWLG.         -120.
    H1PHV2N   YP.2HV              1.   YP.DWLS1         -120.
    H1PHV2N   YP.DWL31         -120.   YP.DWL21         -120.
    H1PHV2N   YP.DWLG.         -120.
    H1PHV3N   YP.3HV              1.   YP.DWLS1         -120.
    H1PHV3N   YP.DWL31         -120.   YP.DWLG.         -120.
    H1PHVSN   YP.SHV              1.   YP.DWLS1         -120.
    H1PHVSN   YP.DWLG.         -120.
    H2PHVFN   YP.FHV              1.   YP.DWLS2          -60.
    H2PHVFN   YP.DWL32          -60.   YP.DWL22          -60.
    H2PHVFN   YP.DWLF2          -60.   YP.DWLG.          -60.
    H2PHV2N   YP.2HV              1.   YP.DWLS2          -60.
    H2PHV2N   YP.DWL32          -60.   YP.DWL22          -60.
    H2PHV2N   YP.DWLG.          -60.
    H2PHV3N   YP.3HV              1.   YP.DWLS2          -60.
    H2PHV3N   YP.DWL32          -60.   YP.DWLG.          -60.
    H2PHVSN   YP.SHV              1.   YP.DWLS2          -60.
    H2PHVSN   YP.DWLG.          -60.
    H3PHVFN   YP.FHV              1.   YP.DWLS3          -40.
    H3PHVFN   YP.DWL33          -40.   YP.DWL23          -40.
    H3PHVFN   YP.DWLF3          -40.   YP.DWLG.          -40.
    H3PHV2N   YP.2HV              1.   YP.DWLS3          -40.
    H3PHV2N   YP.DWL33          -40.   YP.DWL23          -40.
    H3PHV2N   YP.DWLG.          -40.
    H3PHV3N   YP.3HV              1.   YP.DWLS3          -40.
    H3PHV3N   YP.DWL33          -40.   YP.DWLG.          -40.
    H3PHVSN   YP.SHV              1.   YP.DWLS3          -40.
    H3PHVSN   YP.DWLG.          -40.
    H4PHVFN   YP.FHV              1.   YP.DWLS4          -30.
    H4PHVFN   YP.DWL34          -30.   YP.DWL24          -30.
    H4PHVFN   YP.DWLF4          -30.   YP.DWLG.          -30.
    H4PHV2N   YP.2HV              1.   YP.DWLS4          -30.
    H4PHV2N   YP.DWL34          -30.   YP.DWL24          -30.
    H4PHV2N   YP.DWLG.          -30.
    H4PHV3N   YP.3HV              1.   YP.DWLS4          -30.
    H4PHV3N   YP.DWL34          -30.   YP.DWLG.          -30.
    H4PHVSN   YP.SHV              1.   YP.DWLS4          -30.
    H4PHVSN   YP.DWLG.          -30.
    H5PHVFN   YP.FHV              1.   YP.DWLS5          -24.
    H5PHVFN   YP.DWL35          -24.   YP.DWL25          -24.
    H5PHVFN   YP.DWLF5          -24.   YP.DWLG.          -24.
    H5PHV2N   YP.2HV              1.   YP.DWLS5          -24.
    H5PHV2N   YP.DWL35          -24.   YP.DWL25          -24.
    H5PHV2N   YP.DWLG.          -24.
    H5PHV3N   YP.3HV              1.   YP.DWLS5          -24.
    H5PHV3N   YP.DWL35          -24.   YP.DWLG.          -24.
    H5PHVSN   YP.SHV              1.   YP.DWLS5          -24.
    H5PHVSN   YP.DWLG.          -24.
    H6PHVFN   YP.FHV              1.   YP.DWLS6          -20.
    H6PHVFN   YP.DWL36          -20.   YP.DWL26          -20.
    H6PHVFN   YP.DWLF6          -20.   YP.DWLG.          -20.
    H6PHV2N   YP.2HV              1.   YP.DWLS6          -20.
    H6PHV2N   YP.DWL36          -20.   YP.DWL26          -20.
    H6PHV2N   YP.DWLG.          -20.
    H6PHV3N   YP.3HV              1.   YP.DWLS6          -20.
    H6PHV3N   YP.DWL36          -20.   YP.DWLG.          -20.
    H6PHVSN   YP.SHV              1.   YP.DWLS6          -20.
    H6PHVSN   YP.DWLG.          -20.
    H7PHVFN   YP.FHV              1.   YP.DWLS7     -17.14299
    H7PHVFN   YP.DWL37     -17.14299   YP.DWL27     -17.14299
    H7PHVFN   YP.DWLF7     -17.14299   YP.DWLG.     -17.14299
    H7PHV2N   YP.2HV              1.   YP.DWLS7     -17.14299
    H7PHV2N   YP.DWL37     -17.14299   YP.DWL27     -17.14299
    H7PHV2N   YP.DWLG.     -17.14299
    H7PHV3N   YP.3HV              1.   YP.DWLS7     -17.14299
    H7PHV3N   YP.DWL37     -17.14299   YP.DWLG.     -17.14299
    H7PHVSN   YP.SHV              1.   YP.DWLS7     -17.14299
    H7PHVSN   YP.DWLG.     -17.14299
    H8PHVFN   YP.FHV              1.   YP.DWLS8          -15.
    H8PHVFN   YP.DWL38          -15.   YP.DWL28          -15.
    H8PHVFN   YP.DWLF8          -15.   YP.DWLG.          -15.
    H8PHV2N   YP.2HV              1.   YP.DWLS8          -15.
    H8PHV2N   YP.DWL38          -15.   YP.DWL28          -15.
    H8PHV2N   YP.DWLG.          -15.
    H8PHV3N   YP.3HV              1.   YP.DWLS8          -15.
    H8PHV3N   YP.DWL38          -15.   YP.DWLG.          -15.
    H8PHVSN   YP.SHV              1.   YP.DWLS8          -15.
    H8PHVSN   YP.DWLG.          -15.
    H1PLVFN   YP.FLV              1.   YP.DWLF1          -60.
    H1PLVFN   YP.DWL21          -60.   YP.DWL31          -60.
    H1PLVFN   YP.DWLS1          -60.   YP.DWLG.          -60.
    H1PLV2N   YP.2LV              1.   YP.DWL21          -60.
    H1PLV2N   YP.DWL31          -60.   YP.DWLS1          -60.
    H1PLV2N   YP.DWLG.          -60.
    H1PLV3N   YP.3LV              1.   YP.DWL31          -60.
    H1PLV3N   YP.DWLS1          -60.   YP.DWLG.          -60.
    H1PLVSN   YP.SLV              1.   YP.DWLS1          -60.
    H1PLVSN   YP.DWLG.          -60.
    H2PLVFN   YP.FLV              1.   YP.DWLF2          -30.
    H2PLVFN   YP.DWL22          -30.   YP.DWL32          -30.
    H2PLVFN   YP.DWLS2          -30.   YP.DWLG.          -30.
    H2PLV2N   YP.2LV              1.   YP.DWL22          -30.
    H2PLV2N   YP.DWL32          -30.   YP.DWLS2          -30.
    H2PLV2N   YP.DWLG.          -30.
    H2PLV3N   YP.3LV              1.   YP.DWL32          -30.
    H2PLV3N   YP.DWLS2          -30.   YP.DWLG.          -30.
    H2PLVSN   YP.SLV              1.   YP.DWLS2          -30.
    H2PLVSN   YP.DWLG.          -30.
    H3PLVFN   YP.FLV              1.   YP.DWLF3          -20.
    H3PLVFN   YP.DWL23          -20.   YP.DWL33          -20.
    H3PLVFN   YP.DWLS3          -20.   YP.DWLG.          -20.
    H3PLV2N   YP.2LV              1.   YP.DWL23          -20.
    H3PLV2N   YP.DWL33          -20.   YP.DWLS3          -20.
    H3PLV2N   YP.DWLG.          -20.
    H3PLV3N   YP.3LV              1.   YP.DWL33          -20.
    H3PLV3N   YP.DWLS3          -20.   YP.DWLG.          -20.
    H3PLVSN   YP.SLV              1.   YP.DWLS3          -20.
    H3PLVSN   YP.DWLG.          -20.
    H4PLVFN   YP.FLV              1.   YP.DWLF4          -15.
    H4PLVFN   YP.DWL24          -15.   YP.DWL34          -15.
    H4PLVFN   YP.DWLS4          -15.   YP.DWLG.          -15.
    H4PLV2N   YP.2LV              1.   YP.DWL24          -15.
    H4PLV2N   YP.DWL34          -15.   YP.DWLS4          -15.
    H4PLV2N   YP.DWLG.          -15.
    H4PLV3N   YP.3LV              1.   YP.DWL34          -15.
    H4PLV3N   YP.DWLS4          -15.   YP.DWLG.          -15.
    H4PLVSN   YP.SLV              1.   YP.DWLS4          -15.
    H4PLVSN   YP.DWLG.          -15.
    H5PLVFN   YP.FLV              1.   YP.DWLF5          -12.
    H5PLVFN   YP.DWL25          -12.   YP.DWL35          -12.
    H5PLVFN   YP.DWLS5          -12.   YP.DWLG.          -12.
    H5PLV2N   YP.2LV              1.   YP.DWL25          -12.
    H5PLV2N   YP.DWL35          -12.   YP.DWLS5          -12.
    H5PLV2N   YP.DWLG.          -12.
    H5PLV3N   YP.3LV              1.   YP.DWL35          -12.
    H5PLV3N   YP.DWLS5          -12.   YP.DWLG.          -12.
    H5PLVSN   YP.SLV              1.   YP.DWLS5          -12.
    H5PLVSN   YP.DWLG.          -12.
    H6PLVFN   YP.FLV              1.   YP.DWLF6          -10.
    H6PLVFN   YP.DWL26          -10.   YP.DWL36          -10.
    H6PLVFN   YP.DWLS6          -10.   YP.DWLG.          -10.
    H6PLV2N   YP.2LV              1.   YP.DWL26          -10.
    H6PLV2N   YP.DWL36          -10.   YP.DWLS6          -10.
    H6PLV2N   YP.DWLG.          -10.
    H6PLV3N   YP.3LV              1.   YP.DWL36          -10.
    H6PLV3N   YP.DWLS6          -10.   YP.DWLG.          -10.
    H6PLVSN   YP.SLV              1.   YP.DWLS6          -10.
    H6PLVSN   YP.DWLG.          -10.
    H7PLVFN   YP.FLV              1.   YP.DWLF7    -8.5709991
    H7PLVFN   YP.DWL27    -8.5709991   YP.DWL37    -8.5709991
    H7PLVFN   YP.DWLS7    -8.5709991   YP.DWLG.    -8.5709991
    H7PLV2N   YP.2LV              1.   YP.DWL27    -8.5709991
    H7PLV2N   YP.DWL37    -8.5709991   YP.DWLS7    -8.5709991
    H7PLV2N   YP.DWLG.    -8.5709991
    H7PLV3N   YP.3LV              1.   YP.DWL37    -8.5709991
    H7PLV3N   YP.DWLS7    -8.5709991   YP.DWLG.    -8.5709991
    H7PLVSN   YP.SLV              1.   YP.DWLS7    -8.5709991
    H7PLVSN   YP.DWLG.    -8.5709991
    H8PLVFN   YP.FLV              1.   YP.DWLF8          -7.5
    H8PLVFN   YP.DWL28          -7.5   YP.DWL38          -7.5
    H8PLVFN   YP.DWLS8          -7.5   YP.DWLG.          -7.5
    H8PLV2N   YP.2LV              1.   YP.DWL28          -7.5
    H8PLV2N   YP.DWL38          -7.5   YP.DWLS8          -7.5
    H8PLV2N   YP.DWLG.          -7.5
    H8PLV3N   YP.3LV              1.   YP.DWL38          -7.5
    H8PLV3N   YP.DWLS8          -7.5   YP.DWLG.          -7.5
    H8PLVSN   YP.SLV              1.   YP.DWLS8          -7.5
    H8PLVSN   YP.DWLG.          -7.5
    H2PSSFN   YP.DWLF1           -1.   YP.DWLF2            1.
    H2PSS2N   YP.DWL21           -1.   YP.DWL22            1.
    H2PSS3N   YP.DWL31           -1.   YP.DWL32            1.
    H2PSSSN   YP.DWLS1           -1.   YP.DWLS2            1.
    H3PSSFN   YP.DWLF2           -1.   YP.DWLF3            1.
    H3PSS2N   YP.DWL22           -1.   YP.DWL23            1.
    H3PSS3N   YP.DWL32           -1.   YP.DWL33            1.
    H3PSSSN   YP.DWLS2           -1.   YP.DWLS3            1.
    H4PSSFN   YP.DWLF3           -1.   YP.DWLF4            1.
    H4PSS2N   YP.DWL23           -1.   YP.DWL24            1.
    H4PSS3N   YP.DWL33           -1.   YP.DWL34            1.
    H4PSSSN   YP.DWLS3           -1.   YP.DWLS4            1.
    H5PSSFN   YP.DWLF4           -1.   YP.DWLF5            1.
    H5PSS2N   YP.DWL24           -1.   YP.DWL25            1.
    H5PSS3N   YP.DWL34           -1.   YP.DWL35            1.
    H5PSSSN   YP.DWLS4           -1.   YP.DWLS5            1.
    H6PSSFN   YP.DWLF5           -1.   YP.DWLF6            1.
    H6PSS2N   YP.DWL25           -1.   YP.DWL26            1.
    H6PSS3N   YP.DWL35           -1.   YP.DWL36            1.
    H6PSSSN   YP.DWLS5           -1.   YP.DWLS6            1.
    H7PSSFN   YP.DWLF6           -1.   YP.DWLF7            1.
    H7PSS2N   YP.DWL26           -1.   YP.DWL27            1.
    H7PSS3N   YP.DWL36           -1.   YP.DWL37            1.
    H7PSSSN   YP.DWLS6           -1.   YP.DWLS7            1.
    H8PSSFN   YP.DWLF7           -1.   YP.DWLF8            1.
    H8PSS2N   YP.DWL27           -1.   YP.DWL28            1.
    H8PSS3N   YP.DWL37           -1.   YP.DWL38            1.
    H8PSSSN   YP.DWLS7           -1.   YP.DWLS8            1.
    YP.DWLGS  YP.DWLG.            1.   YP.DPA.             1.
    YP.ACRES  YP.ACRE             1.   YP.DPA.           -40.
    BOPSDFR   BAPFT              -1.   BAP2T              -1.
    BOPSDFR   BAP3T              -1.   BAPST              -1.
    BOPSDFR   BAPSR               1.   BAAFO1              1.
    BOPSDFR   BAA2O1              1.   BAA3O1              1.
    BOPSDFR   BAASO1              1.   CEPSBO       .13499999
    BOPSDFR   CEP3BO       .08099997   CEP2BO       .08099997
    BOPSDFR   CEPFBO      .039999999   CTPSBO           3.691
    BOPSDFR   CTP3BO       2.2139997   CTP2BO       2.2139997
    BOPSDFR   CTPFBO       1.1069994   CRPSBO          11.072
    BOPSDFR   CRP3BO       6.6429996   CRP2BO       6.6429996
    BOPSDFR   CRPFBO       3.3219995   CDPFBO       .72599995
    BOPSDFR   BOPSP        16.266998   BOP3P        16.266998
    BOPSDFR   BOP2P        16.266998   BOPFP        16.266998
    BOPSD2R   BAP2T              -1.   BAP3T              -1.
    BOPSD2R   BAPST              -1.   BAPSR               1.
    BOPSD2R   BAA2O1              1.   BAA3O1              1.
    BOPSD2R   BAASO1              1.   CEPSBO       .13499999
    BOPSD2R   CEP3BO       .08099997   CEP2BO      .039999999
    BOPSD2R   CTPSBO           3.691   CTP3BO       2.2139997
    BOPSD2R   CTP2BO       1.1069994   CRPSBO          11.072
    BOPSD2R   CRP3BO       6.6429996   CRP2BO       3.3219995
    BOPSD2R   CDP2BO       .72599995   BOPSP        16.266998
    BOPSD2R   BOP3P        16.266998   BOP2P        16.266998
    BOPSD3R   BAP3T              -1.   BAPST              -1.
    BOPSD3R   BAPSR               1.   BAA3O1              1.
    BOPSD3R   BAASO1              1.   CEPSBO       .13499999
    BOPSD3R   CEP3BO      .039999999   CTPSBO           3.691
    BOPSD3R   CTP3BO       1.1069994   CRPSBO          11.072
    BOPSD3R   CRP3BO       3.3219995   CDP3BO       .72599995
    BOPSD3R   BOPSP        16.266998   BOP3P        16.266998
    BOPSDSR   BAPST              -1.   BAPSR               1.
    BOPSDSR   BAASO1              1.   CEPSBO      .066999972
    BOPSDSR   CTPSBO       1.8449993   CRPSBO       5.5359993
    BOPSDSR   CDPSBO       .72599995   BOPSP        16.266998
    BOPSDFN   BAPSN               1.   BAAFO1              1.
    BOPSDFN   BAA2O1              1.   BAA3O1              1.
    BOPSDFN   BAASO1              1.   B.PFN               1.
    BOPSDFN   CEPSBO       .13499999   CEP3BO       .08099997
    BOPSDFN   CEP2BO       .08099997   CEPFBO      .039999999
    BOPSDFN   CTPSBO           3.691   CTP3BO       2.2139997
    BOPSDFN   CTP2BO       2.2139997   CTPFBO       1.1069994
    BOPSDFN   CRPSBO          11.072   CRP3BO       6.6429996
    BOPSDFN   CRP2BO       6.6429996   CRPFBO       3.3219995
    BOPSDFN   CDPFBO       .72599995   BOPSP        16.266998
    BOPSDFN   BOP3P        16.266998   BOP2P        16.266998
    BOPSDFN   BOPFP        16.266998   ..P.NE              1.
    BOPSD2N   BAPSN               1.   BAA2O1              1.
    BOPSD2N   BAA3O1              1.   BAASO1              1.
    BOPSD2N   B.P2N               1.   CEPSBO       .13499999
    BOPSD2N   CEP3BO       .08099997   CEP2BO      .039999999
    BOPSD2N   CTPSBO           3.691   CTP3BO       2.2139997
    BOPSD2N   CTP2BO       1.1069994   CRPSBO          11.072
    BOPSD2N   CRP3BO       6.6429996   CRP2BO       3.3219995
    BOPSD2N   CDP2BO       .72599995   BOPSP        16.266998
    BOPSD2N   BOP3P        16.266998   BOP2P        16.266998
    BOPSD2N   ..P.NE              1.
    BOPSD3N   BAPSN               1.   BAA3O1              1.
    BOPSD3N   BAASO1              1.   B.P3N               1.
    BOPSD3N   CEPSBO       .13499999   CEP3BO      .039999999
    BOPSD3N   CTPSBO           3.691   CTP3BO       1.1069994
    BOPSD3N   CRPSBO          11.072   CRP3BO       3.3219995
    BOPSD3N   CDP3BO       .72599995   BOPSP        16.266998
    BOPSD3N   BOP3P        16.266998   ..P.NE              1.
    BOPSDSN   BAPSN               1.   BAASO1              1.
    BOPSDSN   B.PSN               1.   CEPSBO      .066999972
    BOPSDSN   CTPSBO       1.8449993   CRPSBO       5.5359993
    BOPSDSN   CDPSBO       .72599995   BOPSP        16.266998
    BOPSDSN   ..P.NE              1.
    BOPNRFN   .BPFN               1.   CEPSBN       .13499999
    BOPNRFN   CEP3BN       .08099997   CEP2BN       .08099997
    BOPNRFN   CEPFBN      .039999999   CSPFBN       5.3999996
    BOPNRFN   CTPSBN       13.948999   CTP3BN       8.3689995
    BOPNRFN   CTP2BN       8.3689995   CTPFBN       4.1849995
    BOPNRFN   CRPSBN       41.845993   CRP3BN       25.106995
    BOPNRFN   CRP2BN       25.106995   CRPFBN          12.554
    BOPNRFN   CBPFBN       557.94385   BOPSP            -61.5
    BOPNRFN   BOP3P            -61.5   BOP2P            -61.5
    BOPNRFN   BOPFP            -61.5   ..P.NI              1.
    BOPNR2N   .BP2N               1.   CEPSBN       .13499999
    BOPNR2N   CEP3BN       .08099997   CEP2BN      .039999999
    BOPNR2N   CSP2BN       5.3999996   CTPSBN       13.948999
    BOPNR2N   CTP3BN       8.3689995   CTP2BN       4.1849995
    BOPNR2N   CRPSBN       41.845993   CRP3BN       25.106995
    BOPNR2N   CRP2BN          12.554   CBP2BN       557.94385
    BOPNR2N   BOPSP            -61.5   BOP3P            -61.5
    BOPNR2N   BOP2P            -61.5   ..P.NI              1.
    BOPNR3N   .BP3N               1.   CEPSBN       .13499999
    BOPNR3N   CEP3BN      .039999999   CSP3BN       5.3999996
    BOPNR3N   CTPSBN       13.948999   CTP3BN       4.1849995
    BOPNR3N   CRPSBN       41.845993   CRP3BN          12.554
    BOPNR3N   CBP3BN       557.94385   BOPSP            -61.5
    BOPNR3N   BOP3P            -61.5   ..P.NI              1.
    BOPNRSN   .BPSN               1.   CEPSBN      .066999972
    BOPNRSN   CSPSBN       5.3999996   CTPSBN           6.974
    BOPNRSN   CRPSBN       20.922989   CBPSBN       557.94385
    BOPNRSN   BOPSP            -61.5   ..P.NI              1.
    BOPNVFN   LVPFA               1.   LVPSN               1.
    BOPNVFN   CEPSBN       .13499999   CEP3BN       .08099997
    BOPNVFN   CEP2BN       .08099997   CEPFBN      .039999999
    BOPNVFN   CSPFBN       3.5999994   CTPSBN       13.948999
    BOPNVFN   CTP3BN       8.3689995   CTP2BN       8.3689995
    BOPNVFN   CTPFBN       4.1849995   CRPSBN       41.845993
    BOPNVFN   CRP3BN       25.106995   CRP2BN       25.106995
    BOPNVFN   CRPFBN          12.554   CBPFBN       531.37598
    BOPNVFN   BOPSP            -61.5   BOP3P            -61.5
    BOPNVFN   BOP2P            -61.5   BOPFP            -61.5
    BOPNVFN   LVPSN2              1.
    BOPNV2N   LVP2A               1.   LVPSN               1.
    BOPNV2N   CEPSBN       .13499999   CEP3BN       .08099997
    BOPNV2N   CEP2BN      .039999999   CSP2BN       3.5999994
    BOPNV2N   CTPSBN       13.948999   CTP3BN       8.3689995
    BOPNV2N   CTP2BN       4.1849995   CRPSBN       41.845993
    BOPNV2N   CRP3BN       25.106995   CRP2BN          12.554
    BOPNV2N   CBP2BN       531.37598   BOPSP            -61.5
    BOPNV2N   BOP3P            -61.5   BOP2P            -61.5
    BOPNV2N   LVPSN2              1.
    BOPNV3N   LVP3A               1.   LVPSN               1.
    BOPNV3N   CEPSBN       .13499999   CEP3BN      .039999999
    BOPNV3N   CSP3BN       3.5999994   CTPSBN       13.948999
    BOPNV3N   CTP3BN       4.1849995   CRPSBN       41.845993
    BOPNV3N   CRP3BN          12.554   CBP3BN       531.37598
    BOPNV3N   BOPSP            -61.5   BOP3P            -61.5
    BOPNV3N   LVPSN2              1.
    BOPNVSN   LVPSA               1.   LVPSN               1.
    BOPNVSN   CEPSBN      .066999972   CSPSBN       3.5999994
    BOPNVSN   CTPSBN           6.974   CRPSBN       20.922989
    BOPNVSN   CBPSBN       531.37598   BOPSP            -61.5
    BOPNVSN   LVPSN2              1.
    BTPAAAA   BTP.P               1.   BOP3P               1.
    BTPAAAA   BOPSP               1.   BOPFP               1.
    BTPAAAA   BOP2P               1.
    DEPPAFA   EPPFD              -1.   EPPFP               1.
    DEPPA2A   EPP2D              -1.   EPP2P               1.
    DEPPA3A   EPP3D              -1.   EPP3P               1.
    DEPPASA   EPPSD              -1.   EPPSP               1.
    DEPSAFA   ESPFD              -1.   ESPFP               1.
    DEPSA2A   ESP2D              -1.   ESP2P               1.
    DEPSA3A   ESP3D              -1.   ESP3P               1.
    DEPSASA   ESPSD              -1.   ESPSP               1.
    DHPAAFA   DHPFP               1.   BOPFP        7.9209995
    DHPAAFA   PAPFP        6.5009995   ESPFD       .055999998
    DHPAAFA   EPPFD       .093999982   DPPFD               1.
    DHPAA2A   DHP2P               1.   BOP2P        6.6609993
    DHPAA2A   PAP2P        6.5929995   ESP2D       .064099967
    DHPAA2A   EPP2D       .099999964   DPP2D               1.
    DHPAA3A   DHP3P               1.   BOP3P        5.4009991
    DHPAA3A   PAP3P        6.6709995   ESP3D       .069999993
    DHPAA3A   EPP3D       .099999964   DPP3D               1.
    DHPAASA   DHPSP               1.   BOPSP        3.2999992
    DHPAASA   PAPSP        6.8349991   ESPSD       .076099992
    DHPAASA   EPPSD       .094999969   DPPSD               1.
    DRPAAFA   DPPFD              -1.   YP.DWLF8        11.261
    DRPAAFA   YP.DWLF7     19.684998   YP.DWLF6       135.245
    DRPAAFA   YP.DWLF5     70.164993   YP.DWLF4      66.17099
    DRPAAFA   YP.DWLF3     26.596985   YP.DWLF2        10.546
    DRPAAFA   YP.DWLF1     6.8169994
    DRPAA2A   DPP2D              -1.   YP.DWL28     11.337999
    DRPAA2A   YP.DWL27     19.818985   YP.DWL26       137.396
    DRPAA2A   YP.DWL25     70.365997   YP.DWL24     66.338989
    DRPAA2A   YP.DWL23     26.569992   YP.DWL22     10.462999
    DRPAA2A   YP.DWL21     6.5609999
    DRPAA3A   DPP3D              -1.   YP.DWL38        11.415
    DRPAA3A   YP.DWL37     19.953995   YP.DWL36       139.564
    DRPAA3A   YP.DWL35     70.562988   YP.DWL34     66.502991
    DRPAA3A   YP.DWL33     26.540985   YP.DWL32     10.377999
    DRPAA3A   YP.DWL31     6.3019991
    DRPAASA   DPPSD              -1.   YP.DWLS8     11.535999
    DRPAASA   YP.DWLS7     20.164993   YP.DWLS6     143.12299
    DRPAASA   YP.DWLS5     70.838989   YP.DWLS4     66.724991
    DRPAASA   YP.DWLS3     26.468994   YP.DWLS2        10.224
    DRPAASA   YP.DWLS1     5.8569994
    CBPRNFA   CBPFRN             -1.   CNAF.               1.
    CBPRN2A   CBP2RN             -1.   CNA2.               1.
    CBPRN3A   CBP3RN             -1.   CNA3.               1.
    CBPRNSA   CBPSRN             -1.   CNAS.               1.
    CBPFNFA   CBPFFN             -1.   CNAF.               1.
    CBPFN2A   CBP2FN             -1.   CNA2.               1.
    CBPFN3A   CBP3FN             -1.   CNA3.               1.
    CBPFNSA   CBPSFN             -1.   CNAS.               1.
    CBPONFA   CBPFON             -1.   CNAF.               1.
    CBPON2A   CBP2ON             -1.   CNA2.               1.
    CBPON3A   CBP3ON             -1.   CNA3.               1.
    CBPONSA   CBPSON             -1.   CNAS.               1.
    CBPSNFA   CBPFSN             -1.   CNAF.               1.
    CBPSN2A   CBP2SN             -1.   CNA2.               1.
    CBPSN3A   CBP3SN             -1.   CNA3.               1.
    CBPSNSA   CBPSSN             -1.   CNAS.               1.
    CBPPNFA   CBPFPN             -1.   CNAF.               1.
    CBPPN2A   CBP2PN             -1.   CNA2.               1.
    CBPPN3A   CBP3PN             -1.   CNA3.               1.
    CBPPNSA   CBPSPN             -1.   CNAS.               1.
    CBPENFA   CBPFEN             -1.   CNAF.               1.
    CBPEN2A   CBP2EN             -1.   CNA2.               1.
    CBPEN3A   CBP3EN             -1.   CNA3.               1.
    CBPENSA   CBPSEN             -1.   CNAS.               1.
    CBPHNFA   CBPFHN             -1.   CNAF.               1.
    CBPHN2A   CBP2HN             -1.   CNA2.               1.
    CBPHN3A   CBP3HN             -1.   CNA3.               1.
    CBPHNSA   CBPSHN             -1.   CNAS.               1.
    CBPBNFA   CBPFBN             -1.   CNAF.               1.
    CBPBN2A   CBP2BN             -1.   CNA2.               1.
    CBPBN3A   CBP3BN             -1.   CNA3.               1.
    CBPBNSA   CBPSBN             -1.   CNAS.               1.
    CSPFNFA   CSPFFN             -1.   CNAF.               1.
    CSPFN2A   CSP2FN             -1.   CNA2.               1.
    CSPFN3A   CSP3FN             -1.   CNA3.               1.
    CSPFNSA   CSPSFN             -1.   CNAS.               1.
    CSPONFA   CSPFON             -1.   CNAF.               1.
    CSPON2A   CSP2ON             -1.   CNA2.               1.
    CSPON3A   CSP3ON             -1.   CNA3.               1.
    CSPONSA   CSPSON             -1.   CNAS.               1.
    CSPSNFA   CSPFSN             -1.   CNAF.               1.
    CSPSN2A   CSP2SN             -1.   CNA2.               1.
    CSPSN3A   CSP3SN             -1.   CNA3.               1.
    CSPSNSA   CSPSSN             -1.   CNAS.               1.
    CSPPNFA   CSPFPN             -1.   CNAF.               1.
    CSPPN2A   CSP2PN             -1.   CNA2.               1.
    CSPPN3A   CSP3PN             -1.   CNA3.               1.
    CSPPNSA   CSPSPN             -1.   CNAS.               1.
    CSPENFA   CSPFEN             -1.   CNAF.               1.
    CSPEN2A   CSP2EN             -1.   CNA2.               1.
    CSPEN3A   CSP3EN             -1.   CNA3.               1.
    CSPENSA   CSPSEN             -1.   CNAS.               1.
    CSPHNFA   CSPFHN             -1.   CNAF.               1.
    CSPHN2A   CSP2HN             -1.   CNA2.               1.
    CSPHN3A   CSP3HN             -1.   CNA3.               1.
    CSPHNSA   CSPSHN             -1.   CNAS.               1.
    CSPBNFA   CSPFBN             -1.   CNAF.               1.
    CSPBN2A   CSP2BN             -1.   CNA2.               1.
    CSPBN3A   CSP3BN             -1.   CNA3.               1.
    CSPBNSA   CSPSBN             -1.   CNAS.               1.
    CDPFOFA   CDPFFO             -1.   CNAF.               1.
    CDPFOFA   COST.DEM            1.
    CDPFO2A   CDP2FO             -1.   CNA2.               1.
    CDPFO2A   COST.DEM            1.
    CDPFO3A   CDP3FO             -1.   CNA3.               1.
    CDPFO3A   COST.DEM            1.
    CDPFOSA   CDPSFO             -1.   CNAS.               1.
    CDPFOSA   COST.DEM            1.
    CDPOOFA   CDPFOO             -1.   CNAF.               1.
    CDPOOFA   COST.DEM            1.
    CDPOO2A   CDP2OO             -1.   CNA2.               1.
    CDPOO2A   COST.DEM            1.
    CDPOO3A   CDP3OO             -1.   CNA3.               1.
    CDPOO3A   COST.DEM            1.
    CDPOOSA   CDPSOO             -1.   CNAS.               1.
    CDPOOSA   COST.DEM            1.
    CDPSOFA   CDPFSO             -1.   CNAF.               1.
    CDPSOFA   COST.DEM            1.
    CDPSO2A   CDP2SO             -1.   CNA2.               1.
    CDPSO2A   COST.DEM            1.
    CDPSO3A   CDP3SO             -1.   CNA3.               1.
    CDPSO3A   COST.DEM            1.
    CDPSOSA   CDPSSO             -1.   CNAS.               1.
    CDPSOSA   COST.DEM            1.
    CDPPOFA   CDPFPO             -1.   CNAF.               1.
    CDPPOFA   COST.DEM            1.
    CDPPO2A   CDP2PO             -1.   CNA2.               1.
    CDPPO2A   COST.DEM            1.
    CDPPO3A   CDP3PO             -1.   CNA3.               1.
    CDPPO3A   COST.DEM            1.
    CDPPOSA   CDPSPO             -1.   CNAS.               1.
    CDPPOSA   COST.DEM            1.
    CDPEOFA   CDPFEO             -1.   CNAF.               1.
    CDPEOFA   COST.DEM            1.
    CDPEO2A   CDP2EO             -1.   CNA2.               1.
    CDPEO2A   COST.DEM            1.
    CDPEO3A   CDP3EO             -1.   CNA3.               1.
    CDPEO3A   COST.DEM            1.
    CDPEOSA   CDPSEO             -1.   CNAS.               1.
    CDPEOSA   COST.DEM            1.
    CDPHOFA   CDPFHO             -1.   CNAF.               1.
    CDPHOFA   COST.DEM            1.
    CDPHO2A   CDP2HO             -1.   CNA2.               1.
    CDPHO2A   COST.DEM            1.
    CDPHO3A   CDP3HO             -1.   CNA3.               1.
    CDPHO3A   COST.DEM            1.
    CDPHOSA   CDPSHO             -1.   CNAS.               1.
    CDPHOSA   COST.DEM            1.
    CDPBOFA   CDPFBO             -1.   CNAF.               1.
    CDPBOFA   COST.DEM            1.
    CDPBO2A   CDP2BO             -1.   CNA2.               1.
    CDPBO2A   COST.DEM            1.
    CDPBO3A   CDP3BO             -1.   CNA3.               1.
    CDPBO3A   COST.DEM            1.
    CDPBOSA   CDPSBO             -1.   CNAS.               1.
    CDPBOSA   COST.DEM            1.
    CIPEOFA   CIPFEO             -1.   CMAF.               1.
    CIPEO2A   CIP2EO             -1.   CMA2.               1.
    CIPEO3A   CIP3EO             -1.   CMA3.               1.
    CIPEOSA   CIPSEO             -1.   CMAS.               1.
    CIPHOFA   CIPFHO             -1.   CMAF.               1.
    CIPHO2A   CIP2HO             -1.   CMA2.               1.
    CIPHO3A   CIP3HO             -1.   CMA3.               1.
    CIPHOSA   CIPSHO             -1.   CMAS.               1.
    CCPHOFA   CCPFHO             -1.   CMAF.               1.
    CCPHO2A   CCP2HO             -1.   CMA2.               1.
    CCPHO3A   CCP3HO             -1.   CMA3.               1.
    CCPHOSA   CCPSHO             -1.   CMAS.               1.
    CRPRNFA   CRPFRN             -1.   CMAF.               1.
    CRPRN2A   CRP2RN             -1.   CMA2.               1.
    CRPRN3A   CRP3RN             -1.   CMA3.               1.
    CRPRNSA   CRPSRN             -1.   CMAS.               1.
    CRPFNFA   CRPFFN             -1.   CMAF.               1.
    CRPFN2A   CRP2FN             -1.   CMA2.               1.
    CRPFN3A   CRP3FN             -1.   CMA3.               1.
    CRPFNSA   CRPSFN             -1.   CMAS.               1.
    CRPFOFA   CRPFFO              1.   CMAF.               1.
    CRPFO2A   CRP2FO              1.   CMA2.               1.
    CRPFO3A   CRP3FO              1.   CMA3.               1.
    CRPFOSA   CRPSFO              1.   CMAS.               1.
    CRPONFA   CRPFON             -1.   CMAF.               1.
    CRPON2A   CRP2ON             -1.   CMA2.               1.
    CRPON3A   CRP3ON             -1.   CMA3.               1.
    CRPONSA   CRPSON             -1.   CMAS.               1.
    CRPOOFA   CRPFOO              1.   CMAF.               1.
    CRPOO2A   CRP2OO              1.   CMA2.               1.
    CRPOO3A   CRP3OO              1.   CMA3.               1.
    CRPOOSA   CRPSOO              1.   CMAS.               1.
    CRPSNFA   CRPFSN             -1.   CMAF.               1.
    CRPSN2A   CRP2SN             -1.   CMA2.               1.
    CRPSN3A   CRP3SN             -1.   CMA3.               1.
    CRPSNSA   CRPSSN             -1.   CMAS.               1.
    CRPSOFA   CRPFSO              1.   CMAF.               1.
    CRPSO2A   CRP2SO              1.   CMA2.               1.
    CRPSO3A   CRP3SO              1.   CMA3.               1.
    CRPSOSA   CRPSSO              1.   CMAS.               1.
    CRPPNFA   CRPFPN             -1.   CMAF.               1.
    CRPPN2A   CRP2PN             -1.   CMA2.               1.
    CRPPN3A   CRP3PN             -1.   CMA3.               1.
    CRPPNSA   CRPSPN             -1.   CMAS.               1.
    CRPPOFA   CRPFPO              1.   CMAF.               1.
    CRPPO2A   CRP2PO              1.   CMA2.               1.
    CRPPO3A   CRP3PO              1.   CMA3.               1.
    CRPPOSA   CRPSPO              1.   CMAS.               1.
    CRPENFA   CRPFEN             -1.   CMAF.               1.
    CRPEN2A   CRP2EN             -1.   CMA2.               1.
    CRPEN3A   CRP3EN             -1.   CMA3.               1.
    CRPENSA   CRPSEN             -1.   CMAS.               1.
    CRPEOFA   CRPFEO              1.   CMAF.               1.
    CRPEO2A   CRP2EO              1.   CMA2.               1.
    CRPEO3A   CRP3EO              1.   CMA3.               1.
    CRPEOSA   CRPSEO              1.   CMAS.               1.
    CRPHNFA   CRPFHN             -1.   CMAF.               1.
    CRPHN2A   CRP2HN             -1.   CMA2.               1.
    CRPHN3A   CRP3HN             -1.   CMA3.               1.
    CRPHNSA   CRPSHN             -1.   CMAS.               1.
    CRPHOFA   CRPFHO             -1.   CMAF.               1.
    CRPHO2A   CRP2HO             -1.   CMA2.               1.
    CRPHO3A   CRP3HO             -1.   CMA3.               1.
    CRPHOSA   CRPSHO             -1.   CMAS.               1.
    CRPBNFA   CRPFBN             -1.   CMAF.               1.
    CRPBN2A   CRP2BN             -1.   CMA2.               1.
    CRPBN3A   CRP3BN             -1.   CMA3.               1.
    CRPBNSA   CRPSBN             -1.   CMAS.               1.
    CRPBOFA   CRPFBO              1.   CMAF.               1.
    CRPBO2A   CRP2BO              1.   CMA2.               1.
    CRPBO3A   CRP3BO              1.   CMA3.               1.
    CRPBOSA   CRPSBO              1.   CMAS.               1.
    CTPFNFA   CTPFFN             -1.   CMAF.               1.
    CTPFN2A   CTP2FN             -1.   CMA2.               1.
    CTPFN3A   CTP3FN             -1.   CMA3.               1.
    CTPFNSA   CTPSFN             -1.   CMAS.               1.
    CTPFOFA   CTPFFO              1.   CMAF.               1.
    CTPFO2A   CTP2FO              1.   CMA2.               1.
    CTPFO3A   CTP3FO              1.   CMA3.               1.
    CTPFOSA   CTPSFO              1.   CMAS.               1.
    CTPONFA   CTPFON             -1.   CMAF.               1.
    CTPON2A   CTP2ON             -1.   CMA2.               1.
    CTPON3A   CTP3ON             -1.   CMA3.               1.
    CTPONSA   CTPSON             -1.   CMAS.               1.
    CTPOOFA   CTPFOO              1.   CMAF.               1.
    CTPOO2A   CTP2OO              1.   CMA2.               1.
    CTPOO3A   CTP3OO              1.   CMA3.               1.
    CTPOOSA   CTPSOO              1.   CMAS.               1.
    CTPSNFA   CTPFSN             -1.   CMAF.               1.
    CTPSN2A   CTP2SN             -1.   CMA2.               1.
    CTPSN3A   CTP3SN             -1.   CMA3.               1.
    CTPSNSA   CTPSSN             -1.   CMAS.               1.
    CTPSOFA   CTPFSO              1.   CMAF.               1.
    CTPSO2A   CTP2SO              1.   CMA2.               1.
    CTPSO3A   CTP3SO              1.   CMA3.               1.
    CTPSOSA   CTPSSO              1.   CMAS.               1.
    CTPPNFA   CTPFPN             -1.   CMAF.               1.
    CTPPN2A   CTP2PN             -1.   CMA2.               1.
    CTPPN3A   CTP3PN             -1.   CMA3.               1.
    CTPPNSA   CTPSPN             -1.   CMAS.               1.
    CTPPOFA   CTPFPO              1.   CMAF.               1.
    CTPPO2A   CTP2PO              1.   CMA2.               1.
    CTPPO3A   CTP3PO              1.   CMA3.               1.
    CTPPOSA   CTPSPO              1.   CMAS.               1.
    CTPENFA   CTPFEN             -1.   CMAF.               1.
    CTPEN2A   CTP2EN             -1.   CMA2.               1.
    CTPEN3A   CTP3EN             -1.   CMA3.               1.
    CTPENSA   CTPSEN             -1.   CMAS.               1.
    CTPEOFA   CTPFEO              1.   CMAF.               1.
    CTPEO2A   CTP2EO              1.   CMA2.               1.
    CTPEO3A   CTP3EO              1.   CMA3.               1.
    CTPEOSA   CTPSEO              1.   CMAS.               1.
    CTPHOFA   CTPFHO             -1.   CMAF.               1.
    CTPHO2A   CTP2HO             -1.   CMA2.               1.
    CTPHO3A   CTP3HO             -1.   CMA3.               1.
    CTPHOSA   CTPSHO             -1.   CMAS.               1.
    CTPBNFA   CTPFBN             -1.   CMAF.               1.
    CTPBN2A   CTP2BN             -1.   CMA2.               1.
    CTPBN3A   CTP3BN             -1.   CMA3.               1.
    CTPBNSA   CTPSBN             -1.   CMAS.               1.
    CTPBOFA   CTPFBO              1.   CMAF.               1.
    CTPBO2A   CTP2BO              1.   CMA2.               1.
    CTPBO3A   CTP3BO              1.   CMA3.               1.
    CTPBOSA   CTPSBO              1.   CMAS.               1.
    CEPFNFA   CEPFFN             -1.   CMAF.               1.
    CEPFN2A   CEP2FN             -1.   CMA2.               1.
    CEPFN3A   CEP3FN             -1.   CMA3.               1.
    CEPFNSA   CEPSFN             -1.   CMAS.               1.
    CEPFOFA   CEPFFO              1.   CMAF.               1.
    CEPFO2A   CEP2FO              1.   CMA2.               1.
    CEPFO3A   CEP3FO              1.   CMA3.               1.
    CEPFOSA   CEPSFO              1.   CMAS.               1.
    CEPONFA   CEPFON             -1.   CMAF.               1.
    CEPON2A   CEP2ON             -1.   CMA2.               1.
    CEPON3A   CEP3ON             -1.   CMA3.               1.
    CEPONSA   CEPSON             -1.   CMAS.               1.
    CEPOOFA   CEPFOO              1.   CMAF.               1.
    CEPOO2A   CEP2OO              1.   CMA2.               1.
    CEPOO3A   CEP3OO              1.   CMA3.               1.
    CEPOOSA   CEPSOO              1.   CMAS.               1.
    CEPSNFA   CEPFSN             -1.   CMAF.               1.
    CEPSN2A   CEP2SN             -1.   CMA2.               1.
    CEPSN3A   CEP3SN             -1.   CMA3.               1.
    CEPSNSA   CEPSSN             -1.   CMAS.               1.
    CEPSOFA   CEPFSO              1.   CMAF.               1.
    CEPSO2A   CEP2SO              1.   CMA2.               1.
    CEPSO3A   CEP3SO              1.   CMA3.               1.
    CEPSOSA   CEPSSO              1.   CMAS.               1.
    CEPENFA   CEPFEN             -1.   CMAF.               1.
    CEPEN2A   CEP2EN             -1.   CMA2.               1.
    CEPEN3A   CEP3EN             -1.   CMA3.               1.
    CEPENSA   CEPSEN             -1.   CMAS.               1.
    CEPEOFA   CEPFEO              1.   CMAF.               1.
    CEPEO2A   CEP2EO              1.   CMA2.               1.
    CEPEO3A   CEP3EO              1.   CMA3.               1.
    CEPEOSA   CEPSEO              1.   CMAS.               1.
    CEPHOFA   CEPFHO             -1.   CMAF.               1.
    CEPHO2A   CEP2HO             -1.   CMA2.               1.
    CEPHO3A   CEP3HO             -1.   CMA3.               1.
    CEPHOSA   CEPSHO             -1.   CMAS.               1.
    CEPBNFA   CEPFBN             -1.   CMAF.               1.
    CEPBN2A   CEP2BN             -1.   CMA2.               1.
    CEPBN3A   CEP3BN             -1.   CMA3.               1.
    CEPBNSA   CEPSBN             -1.   CMAS.               1.
    CEPBOFA   CEPFBO              1.   CMAF.               1.
    CEPBO2A   CEP2BO              1.   CMA2.               1.
    CEPBO3A   CEP3BO              1.   CMA3.               1.
    CEPBOSA   CEPSBO              1.   CMAS.               1.
    CNA..F.   ..COST..            1.   CNAF.              -1.
    CNA..2.   ..COST..            1.   CNA2.              -1.
    CNA..3.   ..COST..            1.   CNA3.              -1.
    CNA..S.   ..COST..            1.   CNAS.              -1.
    CMA..F.   ..COST..            1.   CMAF.              -1.
    CMA..2.   ..COST..            1.   CMA2.              -1.
    CMA..3.   ..COST..            1.   CMA3.              -1.
    CMA..S.   ..COST..            1.   CMAS.              -1.
    ADDVLAND  LVPSN              -1.   LVPLUMP             1.
    ADDVLAND  LVPSN2             -1.
RHS
    JAN.71.   SAPSP       -1352.9939   OAPSP           -7535.
    JAN.71.   FAPSP            8398.   DHPSP        717.21387
    JAN.71.   SAP3P       -929.00391   OAP3P           -5035.
    JAN.71.   FAP3P            5598.   DHP3P        728.19385
    JAN.71.   SAP2P       -672.02197   OAP2P           -3435.
    JAN.71.   FAP2P            3898.   DHP2P        731.09692
    JAN.71.   SAPFP       -420.00488   OAPFP           -1835.
    JAN.71.   FAPFP            2198.   DHPFP        735.58276
    JAN.71.   CEPSBO             54.   CEP3BO       32.399994
    JAN.71.   CEP2BO       32.399994   CEPFBO       32.399994
    JAN.71.   CEPSEO       56.699997   CEP3EO       34.019989
    JAN.71.   CEP2EO       34.019989   CEPFEO       34.019989
    JAN.71.   CEPSSO       212.09999   CEP3SO       127.25999
    JAN.71.   CEP2SO       127.25999   CEPFSO       127.25999
    JAN.71.   CEPSOO       574.34888   CEP3OO       344.60986
    JAN.71.   CEP2OO       344.60986   CEPFOO       344.60986
    JAN.71.   CTPSBO       1476.4658   CTP3BO        885.7749
    JAN.71.   CTP2BO        885.7749   CTPFBO        885.7749
    JAN.71.   CTPSEO       1070.2759   CTP3EO       641.78882
    JAN.71.   CTP2EO       641.78882   CTPFEO       641.78882
    JAN.71.   CTPSPO       313.79395   CTP3PO         188.267
    JAN.71.   CTP2PO         188.267   CTPFPO         188.267
    JAN.71.   CTPSSO       1503.4368   CTP3SO       902.20776
    JAN.71.   CTP2SO       902.20776   CTPFSO       902.20776
    JAN.71.   CTPSOO       3537.9958   CTP3OO       2123.5339
    JAN.71.   CTP2OO       2123.5339   CTPFOO       2123.5339
    JAN.71.   CTPSFO       5066.7695   CTP3FO        3039.356
    JAN.71.   CTP2FO        3039.356   CTPFFO        3039.356
    JAN.71.   CRPSBO       4429.3945   CRP3BO       2657.6389
    JAN.71.   CRP2BO       2657.6389   CRPFBO       2657.6389
    JAN.71.   CRPSEO       3210.2009   CRP3EO       1925.9949
    JAN.71.   CRP2EO       1925.9949   CRPFEO       1925.9949
    JAN.71.   CRPSPO       941.57495   CRP3PO       564.75391
    JAN.71.   CRP2PO       564.75391   CRPFPO       564.75391
    JAN.71.   CRPSSO       4510.3047   CRP3SO       2705.8928
    JAN.71.   CRP2SO       2705.8928   CRPFSO       2705.8928
    JAN.71.   CRPSOO       10613.988   CRP3OO       6368.7617
    JAN.71.   CRP2OO       6368.7617   CRPFOO       6368.7617
    JAN.71.   CRPSFO       15198.555   CRP3FO       9119.8398
    JAN.71.   CRP2FO       9119.8398   CRPFFO       9119.8398
    JAN.71.   BAASO1            120.   BAA3O1        77.14299
    JAN.71.   BAA2O1       51.428986   BAAFO1       25.713989
    JAN.71.   ESASO1       107.76799   ESA3O1       69.279999
    JAN.71.   ESA2O1       46.185989   ESAFO1       23.092987
    JAN.71.   ESPSP              40.   ESP3P              40.
    JAN.71.   ESP2P              40.   ESPFP              40.
    JAN.71.   EPASO1       81.231995   EPA3O1       52.219986
    JAN.71.   EPA2O1       34.813995   EPAFO1       17.406998
    JAN.71.   EPPSP              62.   EPP3P              62.
    JAN.71.   EPP2P              62.   EPPFP              62.
    JAN.71.   PAPSP            4782.   PAP3P            4782.
    JAN.71.   PAP2P            4782.   PAPFP            4782.
    JAN.71.   SAASO1            50.5   SAA3O1       32.463989
    JAN.71.   SAA2O1        21.64299   SAAFO1       10.820999
    JAN.71.   OAASO1          136.75   OAA3O1       87.910995
    JAN.71.   OAA2O1       58.606995   OAAFO1       29.303986
    JAN.71.   FAASO1           401.5   FAA3O1       258.10693
    JAN.71.   FAA2O1         172.071   FAAFO1       86.035995
    JAN.71.   LVPSN         1263.752   BAPSN        399.31787
    JAN.71.   ESPSN        429.07495   EPPSN         323.4209
    JAN.71.   PAPSN        4736.9375   SAPSN          201.599
    JAN.71.   OAPSN        543.89893   FAPSN         1594.761
    JAN.71.   BAPSR        .68199998   ESPSR        1.9979992
    JAN.71.   EPPSR        1.5059996   PAPSR        45.059998
    JAN.71.   SAPSR        .40099996   OAPSR        3.1009998
    JAN.71.   FAPSR        11.238999   BTP.P              12.
    JAN.71.   BOPSP            6507.   BOP3P            6507.
    JAN.71.   BOP2P            6507.   BOPFP            6507.
    JAN.71.   YP.ACRE      17514.395   YP.DWLG.     225850.25
    JAN.71.   CRPSHO       -47524.73   CRP3HO      -28229.293
    JAN.71.   CRP2HO      -28015.184   CRPFHO      -27801.066
    JAN.71.   HSPSR        86.301987   HLPSR        5.1169996
    JAN.71.   HMPSR        .92699999   H7PSR        .53699994
    JAN.71.   HWPSN        3879.3188   HVPSN        423.31396
    JAN.71.   HSPSN2       354.85693   HSPSN1         441.573
    JAN.71.   HSPSN3       49.620987   HSPSN4       11082.867
    JAN.71.   HLPSN2          60.306   HLPSN1       362.97485
    JAN.71.   HLPSN3       63.991989   HLPSN4        428.1499
    JAN.71.   HMPSN2       8.5359993   HMPSN1       55.471985
    JAN.71.   HMPSN3        64.78299   HMPSN4       45.039993
    JAN.71.   H7PSN        100.73399   RPPST        .38999999
    JAN.71.   LVPLUMP          1513.   ..P.NI            109.
    JAN.71.   ZLAND              20.   Z4           .26999998
    JAN.71.   LVPSN2      -36.247986   YP.DWLS8         9012.
    JAN.71.   YP.DWL38         9012.   YP.DWL28         9012.
    JAN.71.   YP.DWLF8         9012.   YP.DWLS7     13519.437
    JAN.71.   YP.DWL37     13519.437   YP.DWL27     13519.437
    JAN.71.   YP.DWLF7     13519.437   YP.DWLS6     94932.625
    JAN.71.   YP.DWL36     94932.625   YP.DWL26     94932.625
    JAN.71.   YP.DWLF6     94932.625   YP.DWLS5     50805.117
    JAN.71.   YP.DWL35     50805.117   YP.DWL25     50805.117
    JAN.71.   YP.DWLF5     50805.117   YP.DWLS4     41780.809
    JAN.71.   YP.DWL34     41780.809   YP.DWL24     41780.809
    JAN.71.   YP.DWLF4     41780.809   YP.DWLS3     12855.004
    JAN.71.   YP.DWL33     12855.004   YP.DWL23     12855.004
    JAN.71.   YP.DWLF3     12855.004   YP.DWLS2     2360.4778
    JAN.71.   YP.DWL32     2360.4778   YP.DWL22     2360.4778
    JAN.71.   YP.DWLF2     2360.4778   YP.DWLS1      581.5979
    JAN.71.   YP.DWL31      581.5979   YP.DWL21      581.5979
    JAN.71.   YP.DWLF1      581.5979   DPPSD        21.484985
    JAN.71.   DPP3D        19.852997   DPP2D        18.873993
    JAN.71.   DPPFD        17.894989   COST.DEM          855.
ENDATA
