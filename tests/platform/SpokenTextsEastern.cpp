// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/SpokenTexts.h"

namespace {

constexpr std::uint32_t central[] = {15, 9, 0x80000412};
constexpr std::uint32_t turkish[] = {14, 0x80000209, 0x80000414};
constexpr std::uint32_t baltic[] = {0x80000507, 0x8000020D};
constexpr std::uint32_t estonian[] = {0x80000507, 12};

constexpr SpokenText texts[] = {
    {"Hungarian", central,
     R"(Azt hittem, már nem jön senki.
Azon az éjszakán a hold ragyogott a folyó fölött.
Ne félj, ez csak a szél.
Most már érted, miért jöttem vissza?
Ha nem segít nekem, megpróbálom egyedül.
Hol volt tegnap este tíz és éjfél között?
Hazudik! Láttam magát az állomáson.
Kérem, ne lőjön, két gyerekem van.
Hála Istennek. Láthatom őt?
Mennyi pénzzel tartozol nekik?
Hajnal előtt el kell hagynunk a várost.
Szeretlek. Mindig is szerettelek.
Ki az a férfi az ablaknál?
Mi történt az arcoddal?
Nyissák ki az ajtót, vagy betörjük!
Teát vagy kávét kér?
Boldog születésnapot, nagymama! Hány éves vagy?
A kulcs a virágcserép alatt van, a kapu mellett.
Azonnal hívja a rendőrséget!
Ezt már tavaly is megígérted.
Ez volt életem legszebb nyara.
Nem találom az anyukámat.
Jól figyelj, mert csak egyszer mondom el.
Húsz év háború, és miért?
Egy napon ez mind a tiéd lesz.
A főnök azonnal látni akar az irodájában.
Hallod? Szólnak a harangok.
Egyél valamit, lefogytál.
Ha meghalok, add oda neki ezt a levelet.
A vég csak egy új kezdet. Űrhajó jön.)"},
    {"Romanian", central,
     R"(Credeam că nu mai vine nimeni.
În noaptea aceea luna strălucea deasupra râului.
Nu te teme, e doar vântul.
Înţelegi acum de ce m-am întors?
Dacă nu mă ajutaţi, o să încerc singur.
Unde aţi fost aseară între zece şi miezul nopţii?
Minţiţi! V-am văzut la gară.
Vă rog, nu trageţi, am doi copii.
Slavă Domnului. Pot s-o văd?
Câţi bani le datorezi?
Trebuie să plecăm din oraş înainte de răsărit.
Te iubesc. Te-am iubit întotdeauna.
Cine e bărbatul acela de lângă fereastră?
Ce ai păţit la faţă?
Deschideţi uşa sau o spargem!
Doriţi ceai sau cafea?
La mulţi ani, bunico! Câţi ani împlineşti?
Cheia e sub ghiveci, lângă poartă.
Chemaţi imediat poliţia!
Mi-ai promis asta şi anul trecut.
A fost cea mai frumoasă vară din viaţa mea.
Nu o găsesc pe mama.
Ascultă bine, pentru că o spun o singură dată.
Douăzeci de ani de război, şi pentru ce?
Într-o zi toate astea vor fi ale tale.
Şeful vrea să te vadă imediat în biroul lui.
Auzi? Bat clopotele.
Mănâncă ceva, ai slăbit.
Dacă mor, dă-i scrisoarea aceasta.
Sfârşitul e doar un nou început.)"},
    {"Slovene", central,
     R"(Mislil sem, da ne bo nihče več prišel.
Tisto noč je luna sijala nad reko. Še vedno jo vidim.
Ne boj se, to je samo veter. Nič hudega.
Zdaj razumeš, zakaj sem se vrnil? Še dvomiš?
Če mi ne pomagate, bom poskusil sam.
Kje ste bili sinoči med deseto in polnočjo?
Lažete! Videl sem vas na postaji.
Prosim, ne streljajte, imam dva otroka. Še majhna sta.
Hvala Bogu. Jo lahko vidim? Kje leži?
Koliko denarja jim dolguješ?
Mesto moramo zapustiti pred zoro. Še pred šesto uro.
Ljubim te. Vedno sem te ljubil. Saj veš.
Kdo je tisti mož pri oknu? Ga poznaš?
Kaj se ti je zgodilo z obrazom? Boš povedal že enkrat?
Odprite vrata, ali pa jih vlomimo! Še zadnjič!
Bi radi čaj ali kavo?
Vse najboljše, babica! Koliko si stara? Že osemdeset?
Ključ je pod cvetličnim loncem zraven vrat.
Takoj pokličite policijo!
To si mi obljubil že lani.
To je bilo najlepše poletje v mojem življenju.
Ne najdem svoje mame. Bila je tukaj, čisto blizu.
Dobro poslušaj, ker bom povedal samo enkrat.
Dvajset let vojne, in čemu?
Nekega dne bo vse to tvoje. Hiša in gozd, če hočeš.
Šef te hoče takoj videti v svoji pisarni.
Slišiš? Zvonovi zvonijo.
Pojej kaj, shujšal si.
Če umrem, ji daj to pismo.
Konec je samo nov začetek.)"},
    {"Croatian", central,
     R"(Mislio sam da više nitko neće doći.
Te noći mjesec je sjao nad rijekom.
Ne boj se, to je samo vjetar. Ništa više.
Razumiješ li sada zašto sam se vratio?
Ako mi ne pomognete, pokušat ću sam.
Gdje ste bili sinoć između deset i ponoći?
Lažete! Vidio sam vas na kolodvoru.
Molim vas, nemojte pucati, imam dvoje djece. Još su mala.
Hvala Bogu. Mogu li je vidjeti? Gdje leži?
Koliko im novca duguješ?
Moramo otići iz grada prije zore. Još noćas.
Volim te. Oduvijek sam te volio. Znaš to, anđele.
Tko je onaj čovjek kraj prozora?
Što ti se dogodilo s licem?
Otvorite vrata ili ćemo ih razvaliti!
Želite li čaj ili kavu?
Sretan rođendan, bako! Koliko ti je godina?
Ključ je ispod lonca za cvijeće pokraj vrata.
Odmah pozovite policiju! Brže, čovječe!
To si mi obećao još prošle godine.
Bilo je to najljepše ljeto mojega života.
Ne mogu naći svoju mamu.
Dobro slušaj, jer ću to reći samo jednom.
Dvadeset godina rata, i zbog čega?
Jednoga dana sve će ovo biti tvoje.
Šef te želi odmah vidjeti u svojem uredu.
Čuješ li? Zvona zvone.
Pojedi nešto, smršavio si.
Ako umrem, daj joj ovo pismo. Obećaj mi. Dođi bliže.
Kraj je samo novi početak. Gospođo, izvolite.)"},
    {"Bosnian", central,
     R"(Mislio sam da niko više neće doći.
Te noći mjesec je sijao iznad rijeke. Sjećaš li se?
Ne boj se, to je samo vjetar šta huči.
Razumiješ li sad zašto sam se vratio?
Ako mi ne pomognete, pokušaću sâm.
Gdje ste bili sinoć između deset i ponoći?
Lažete! Vidio sam vas na željezničkoj stanici.
Molim vas, ne pucajte, imam dvoje djece. Još idu u školu.
Hvala Bogu. Mogu li je vidjeti? Gdje je sad, u kojoj sobi?
Koliko im para duguješ?
Moramo napustiti grad prije svitanja. Još noćas.
Volim te. Oduvijek sam te volio. Znaš i sama, džanum.
Ko je onaj čovjek pored prozora?
Šta ti se desilo s licem?
Otvorite vrata ili ćemo ih razvaliti!
Hoćete li čaj ili kahvu, dođite?
Sretan rođendan, nano! Koliko ti je godina?
Ključ je ispod saksije pored kapije.
Odmah zovite miliciju! Požurite, ljudi!
To si mi obećao još prošle godine.
To je bilo najljepše ljeto u mom životu. U Neumu, s tobom, mlađi.
Ne mogu da nađem svoju majku.
Slušaj dobro, jer ću ovo reći samo jednom.
Dvadeset godina rata, i za šta? Za ništa.
Jednog dana sve će ovo biti tvoje.
Šef hoće odmah da te vidi u kancelariji.
Čuješ li? Zvone zvona i uči ezan. Čuda božija.
Pojedi nešto, smršao si.
Ako umrem, daj joj ovo pismo. Riječ mi daj, tuđine.
Kraj je samo novi početak. Između nas rečeno.)"},
    {"Serbian (Latin)", central,
     R"(Mislio sam da više niko neće doći.
Te noći mesec je sijao iznad reke.
Ne boj se, to je samo vetar što huji.
Razumeš li sada zašto sam se vratio?
Ako mi ne pomognete, pokušaću sam.
Gde ste bili sinoć između deset i ponoći?
Lažete! Video sam vas na železničkoj stanici.
Molim vas, ne pucajte, imam dvoje dece. Još idu u školu.
Hvala Bogu. Mogu li da je vidim? Gde leži, u kojoj sobi je?
Koliko im novca duguješ?
Moramo da napustimo grad pre zore. Još noćas.
Volim te. Oduvek sam te voleo. Znaš to, dušo, anđele moj.
Ko je onaj čovek pored prozora?
Šta ti se dogodilo sa licem?
Otvorite vrata ili ćemo ih razvaliti!
Želite li čaj ili kafu?
Srećan rođendan, bako! Koliko ti je godina?
Ključ je ispod saksije pored kapije.
Odmah pozovite policiju! Brže, čoveče!
To si mi obećao još prošle godine.
To je bilo najlepše leto u mom životu.
Ne mogu da nađem svoju majku.
Slušaj dobro, jer ću ovo reći samo jednom.
Dvadeset godina rata, i zbog čega?
Jednog dana sve će ovo biti tvoje.
Šef želi odmah da te vidi u kancelariji.
Čuješ li? Zvone zvona.
Pojedi nešto, smršao si.
Ako umrem, daj joj ovo pismo. Obećaj mi. Priđi bliže.
Kraj je samo novi početak. Između nas rečeno.)"},
    {"Turkish", turkish,
     R"(Artık kimsenin gelmeyeceğini sanıyordum.
O gece ay nehrin üzerinde parlıyordu.
Korkma, sadece rüzgâr.
Neden döndüğümü şimdi anlıyor musun?
Bana yardım etmezseniz, tek başıma denerim.
Dün gece saat on ile on iki arasında neredeydiniz?
Yalan söylüyorsunuz! Sizi istasyonda gördüm.
Lütfen ateş etmeyin, iki çocuğum var.
Tanrı’ya şükür. Onu görebilir miyim?
Onlara ne kadar borcun var?
Şafaktan önce şehri terk etmeliyiz.
Seni seviyorum. Seni her zaman sevdim.
Pencerenin yanındaki adam kim?
Yüzüne ne oldu?
Kapıyı açın yoksa kıracağız!
Çay mı içersiniz, kahve mi?
Doğum günün kutlu olsun, büyükanne! Kaç yaşına girdin?
Anahtar bahçe kapısının yanındaki saksının altında.
Hemen polisi arayın!
Bunu bana geçen yıl da söz vermiştin.
Hayatımın en güzel yazıydı.
Annemi bulamıyorum.
İyi dinle, çünkü bunu sadece bir kez söyleyeceğim.
Yirmi yıl savaş, peki ne için?
Bir gün bunların hepsi senin olacak.
Patron seni hemen odasında görmek istiyor.
Duyuyor musun? Çanlar çalıyor.
Bir şeyler ye, zayıflamışsın.
Ölürsem bu mektubu ona ver.
Son, yalnızca yeni bir başlangıçtır.)"},
    {"Lithuanian", baltic,
     R"(Maniau, kad niekas jau nebeateis.
Tą naktį mėnulis švietė virš upės.
Nebijok, tai tik vėjas.
Ar dabar supranti, kodėl grįžau?
Jei man nepadėsite, pabandysiu vienas.
Kur buvote vakar tarp dešimtos ir vidurnakčio?
Meluojate! Mačiau jus stotyje.
Prašau nešauti, turiu du vaikus.
Ačiū Dievui. Ar galiu ją pamatyti?
Kiek pinigų tu jiems skolingas?
Turime išvykti iš miesto prieš aušrą.
Aš tave myliu. Visada tave mylėjau.
Kas tas vyras prie lango? Ar jį pažįsti?
Kas nutiko tavo veidui?
Atidarykite duris, arba jas išlaušime!
Norėtumėte arbatos ar kavos?
Su gimtadieniu, močiute! Kiek tau metų?
Raktas yra po vazonu šalia vartų.
Tuoj pat kvieskite policiją! Greičiau, žmonės!
Tai man pažadėjai jau pernai.
Tai buvo gražiausia mano gyvenimo vasara.
Nerandu savo mamos. Ji buvo čia, prie krautuvės.
Klausyk atidžiai, nes pasakysiu tik vieną kartą.
Dvidešimt metų karo, ir dėl ko?
Vieną dieną visa tai bus tavo.
Viršininkas nori tuojau pat tave matyti savo kabinete.
Ar girdi? Skamba varpai.
Suvalgyk ką nors, tu sulysai. Šviežia duona ant stalo.
Jei mirsiu, atiduok jai šį laišką.
Pabaiga yra tik nauja pradžia.)"},
    {"Latvian", baltic,
     R"(Es domāju, ka neviens vairs nenāks.
Tajā naktī pār upi spīdēja mēness.
Nebaidies, tas ir tikai vējš.
Vai tagad tu saproti, kāpēc es atgriezos?
Ja jūs man nepalīdzēsiet, mēģināšu viens.
Kur jūs bijāt vakar starp desmitiem un pusnakti? Mājās?
Jūs melojat! Es jūs redzēju stacijā.
Lūdzu, nešaujiet, man ir divi bērni.
Paldies Dievam. Vai drīkstu viņu redzēt?
Cik naudas tu viņiem esi parādā?
Mums jāpamet pilsēta pirms rītausmas.
Es tevi mīlu. Es vienmēr tevi esmu mīlējis.
Kas ir tas vīrietis pie loga?
Kas noticis ar tavu seju? Tā ir ļoti bāla.
Atveriet durvis, citādi mēs tās izlauzīsim!
Vai vēlaties tēju vai kafiju?
Daudz laimes dzimšanas dienā, vecmāmiņ! Cik tev gadu?
Atslēga ir zem puķu poda blakus vārtiem.
Tūlīt zvaniet policijai!
To tu man apsolīji jau pagājušajā gadā.
Tā bija skaistākā vasara manā mūžā.
Es nevaru atrast savu māti.
Klausies uzmanīgi, jo es teikšu tikai vienreiz.
Divdesmit gadu kara, un par ko? Par brīvību?
Kādu dienu tas viss būs tavs.
Priekšnieks grib tevi tūlīt redzēt savā kabinetā.
Vai dzirdi? Skan zvani. Cik tālu, cik klusi tie šodien skan, bērns!
Apēd kaut ko, tu esi novājējis.
Ja es nomiršu, atdod viņai šo vēstuli.
Beigas ir tikai jauns sākums. Šeit, uz šķirstiem.)"},
    {"Estonian", estonian,
     R"(Ma arvasin, et keegi enam ei tule. Nii hilja öösel.
Sel ööl paistis kuu jõe kohal.
Ära karda, see on ainult tuul. Šokk läheb üle.
Kas sa nüüd mõistad, miks ma tagasi tulin?
Kui te mind ei aita, proovin üksi. Küll ma hakkama saan.
Kus te olite eile õhtul kümne ja südaöö vahel?
Te valetate! Ma nägin teid jaamas, tõesti nägin.
Palun ärge tulistage, mul on kaks last.
Jumal tänatud. Kas ma võin teda näha?
Kui palju raha sa neile võlgned?
Me peame linnast enne koitu lahkuma. Öö on pikk.
Ma armastan sind. Olen sind alati armastanud. Südamest.
Kes on see mees akna juures, žurnalist?
Mis su näoga juhtus?
Avage uks või me lööme selle sisse!
Kas soovite teed või kohvi? Või šokolaadi?
Palju õnne sünnipäevaks, vanaema! Kui vanaks sa said?
Võti on lillepoti all värava kõrval.
Kutsuge otsekohe politsei! Kähku, härra!
Seda lubasid sa mulle juba möödunud aastal.
See oli mu elu parim suvi. Ööd olid soojad.
Ma ei leia oma ema üles.
Kuula hoolega, sest ma ütlen seda ainult üks kord.
Kakskümmend aastat sõda, ja mille nimel?
Ühel päeval on see kõik sinu oma.
Ülemus tahab sind kohe oma kabinetis näha.
Kas kuuled? Kellad löövad. Garaaž on lahti.
Söö midagi, sa oled kõhnaks jäänud.
Kui ma suren, anna see kiri temale. Jäta see võti endale.
Lõpp on ainult uus algus. Õnn kaasa!)"},
};

} // namespace

std::span<const SpokenText> textsOfEasternEurope() {
    return texts;
}
