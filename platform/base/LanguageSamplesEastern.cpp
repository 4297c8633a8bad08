// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/LanguageSamples.h"

namespace platform {

namespace {

// Numbers as in TextEncodingTable.
constexpr std::uint32_t central[] = {15, 9, 0x80000412, 0x8000001D};
constexpr std::uint32_t turkish[] = {14, 0x80000414, 0x80000023};
constexpr std::uint32_t baltic[] = {0x80000507, 0x8000020D, 0x80000204, 0x80000406};
constexpr std::uint32_t estonian[] = {0x80000507, 12, 0x8000020D, 0x8000020F, 0x80000204, 0x80000406};

constexpr LanguageSample samples[] = {
    {"Polish", Writing::latin, central, "ąćęłńóśźżé",
     R"(Dzień dobry. Długo państwo na nas czekali?
Proszę usiąść, opowiem panu wszystko od początku.
Nagle usłyszeliśmy krzyk i zgasło światło.
Nikt we wsi nie chciał nam uwierzyć.
Muszę się dowiedzieć, kto zabił mojego brata.
Weź płaszcz, na dworze jest strasznie zimno.
W domu. Oglądałem telewizję z siostrą.
Rzuć broń i podnieś ręce!
Lekarz mówi, że będzie żyła.
Jeszcze nie. Musi odpocząć.
Więcej, niż kiedykolwiek zdołam oddać.
Pociąg odjeżdża za pięć minut, pospiesz się!
Za późno. Wychodzę za mąż za innego.
To adwokat mojego ojca. Nie ufaj mu.
Nic takiego. Spadłem ze schodów.
Cicho! Ktoś idzie.
Szklankę wody, proszę.
Osiemdziesiąt siedem i wciąż tańczę.
Znowu ukradli nam samochód.
Jutro jedziemy z dziećmi nad morze.
Przepraszam, nie chciałem cię zranić.
Dlaczego płaczesz, maleńka?
Chodź ze mną, poszukamy jej razem.
Nikt nie może wiedzieć, że się tu spotkaliśmy.
Mój dziadek zbudował ten dom własnymi rękami.
Nie chcę pańskich pieniędzy, chcę prawdy.
Jest pan zwolniony. Proszę się spakować.
Witaj w domu, synu. Tęskniliśmy za tobą.
Dobranoc. Śpij dobrze i nie myśl o tym.
Wszystko będzie dobrze, zobaczysz.)"},
    {"Czech", Writing::latin, central, "áčďéěíňóřšťúůýž",
     R"(Dobré ráno. Čekáte na nás dlouho?
Posaďte se, všechno vám povím od začátku.
Najednou jsme uslyšeli výkřik a světlo zhaslo.
Nikdo ve vesnici nám nechtěl věřit.
Musím zjistit, kdo zabil mého bratra.
Vezmi si kabát, venku je strašná zima.
Doma. Díval jsem se se sestrou na televizi.
Položte tu zbraň a ruce vzhůru!
Doktor říká, že bude žít.
Ještě ne. Potřebuje odpočívat.
Víc, než kdy budu moct vrátit.
Vlak jede za pět minut, pospěš si!
Je příliš pozdě. Beru si někoho jiného.
Je to otcův právník. Nevěř mu.
Nic. Spadl jsem ze schodů.
Ticho! Někdo jde.
Sklenici vody, prosím.
Osmdesát sedm a pořád ještě tančím.
Zase nám ukradli auto.
Zítra pojedeme s dětmi k moři.
Promiň, nechtěl jsem ti ublížit.
Proč pláčeš, maličká?
Pojď se mnou, budeme ji hledat spolu.
Nikdo nesmí vědět, že jsme se tu setkali.
Můj dědeček tenhle dům postavil vlastníma rukama.
Nechci vaše peníze, chci pravdu.
Máte padáka. Sbalte si věci.
Vítej doma, synu. Chyběl jsi nám.
Dobrou noc. Hezky spi a nemysli na to.
Všechno bude v pořádku, uvidíš.)"},
    {"Slovak", Writing::latin, central, "áäčďéíĺľňóôŕšťúýž",
     R"(Dobré ráno. Čakáte na nás dlho?
Sadnite si, všetko vám poviem od začiatku.
Zrazu sme počuli výkrik a svetlo zhaslo.
Nikto v dedine nám nechcel veriť.
Musím zistiť, kto zabil môjho brata.
Vezmi si kabát, vonku je hrozná zima.
Doma. Pozeral som so sestrou televíziu.
Položte zbraň a ruky hore!
Lekár hovorí, že bude žiť.
Ešte nie. Potrebuje si oddýchnuť.
Viac, než kedy budem môcť vrátiť.
Vlak odchádza o päť minút, ponáhľaj sa!
Je príliš neskoro. Vydávam sa za iného.
To je otcov právnik. Never mu.
Nič. Spadol som zo schodov.
Ticho! Niekto ide.
Pohár vody, prosím.
Osemdesiatsedem a stále tancujem.
Zase nám ukradli auto.
Zajtra pôjdeme s deťmi k moru.
Prepáč, nechcel som ti ublížiť.
Prečo plačeš, maličká?
Poď so mnou, budeme ju hľadať spolu.
Nikto nesmie vedieť, že sme sa tu stretli.
Môj dedo postavil tento dom vlastnými rukami.
Nechcem vaše peniaze, chcem pravdu.
Máte padáka. Zbaľte si veci.
Vitaj doma, syn môj. Chýbal si nám.
Dobrú noc. Spi dobre a nemysli na to.
Všetko bude v poriadku, uvidíš.)"},
    {"Hungarian", Writing::latin, central, "áéíóöőúüű",
     R"(Jó reggelt. Régóta várnak ránk?
Üljön le, mindent elmondok az elejétől.
Hirtelen sikoltást hallottunk, és kialudt a fény.
A faluban senki sem akart hinni nekünk.
Ki kell derítenem, ki ölte meg a bátyámat.
Vedd fel a kabátodat, odakint rettenetes hideg van.
Otthon. Tévét néztem a húgommal.
Tegye le a fegyvert, és emelje fel a kezét!
Az orvos azt mondja, hogy élni fog.
Még nem. Pihennie kell.
Többel, mint amennyit valaha is vissza tudok fizetni.
A vonat öt perc múlva indul, siess!
Túl késő. Máshoz megyek feleségül.
Ő az apám ügyvédje. Ne bízz benne.
Semmi. Leestem a lépcsőn.
Csend! Valaki jön.
Egy pohár vizet kérek.
Nyolcvanhét, és még mindig táncolok.
Megint ellopták az autónkat.
Holnap lemegyünk a tengerhez a gyerekekkel.
Sajnálom, nem akartalak megbántani.
Miért sírsz, kicsikém?
Gyere velem, együtt megkeressük.
Senki sem tudhatja meg, hogy itt találkoztunk.
A nagyapám a saját kezével építette ezt a házat.
Nem a pénze kell, hanem az igazság.
Ki van rúgva. Szedje össze a holmiját.
Isten hozott itthon, fiam. Hiányoztál nekünk.
Jó éjszakát. Aludj jól, és ne gondolj rá.
Minden rendben lesz, majd meglátod.)"},
    {"Romanian", Writing::latin, central, "ăâîşţ",
     R"(Bună dimineaţa. Ne aşteptaţi de mult?
Luaţi loc, vă povestesc totul de la început.
Deodată am auzit un ţipăt şi s-a stins lumina.
Nimeni din sat n-a vrut să ne creadă.
Trebuie să aflu cine mi-a ucis fratele.
Ia-ţi haina, afară e un frig groaznic.
Acasă. Mă uitam la televizor cu sora mea.
Lăsaţi arma jos şi ridicaţi mâinile!
Doctorul spune că va trăi.
Încă nu. Are nevoie de odihnă.
Mai mulţi decât voi putea plăti vreodată.
Trenul pleacă în cinci minute, grăbeşte-te!
E prea târziu. Mă mărit cu altcineva.
E avocatul tatălui meu. Să n-ai încredere în el.
Nimic. Am căzut pe scări.
Linişte! Vine cineva.
Un pahar cu apă, vă rog.
Optzeci şi şapte, şi încă mai dansez.
Iar ne-au furat maşina.
Mâine mergem la mare cu copiii.
Îmi pare rău, n-am vrut să te rănesc.
De ce plângi, micuţo?
Vino cu mine, o căutăm împreună.
Nimeni nu trebuie să ştie că ne-am întâlnit aici.
Bunicul meu a construit casa asta cu mâinile lui.
Nu vreau banii tăi, vreau adevărul.
Eşti concediat. Strânge-ţi lucrurile.
Bine ai venit acasă, fiule. Ne-a fost dor de tine.
Noapte bună. Somn uşor şi nu te mai gândi la asta.
Totul va fi bine, o să vezi.)"},
    {"Slovene", Writing::latin, central, "čšžćđ",
     R"(Dobro jutro. Nas že dolgo čakate?
Sedite, vse vam bom povedal od začetka.
Nenadoma smo zaslišali krik in luč je ugasnila.
Nihče v vasi nam ni hotel verjeti.
Izvedeti moram, kdo je ubil mojega brata. Za vsako ceno, če je treba.
Vzemi plašč, zunaj je strašen mraz.
Doma. S sestro sva gledala televizijo. Vso noč, če že sprašujete.
Odložite orožje in dvignite roke!
Zdravnik pravi, da bo preživela.
Ne še. Počivati mora.
Več, kot bom kdaj lahko vrnil.
Vlak odpelje čez pet minut, pohiti!
Prepozno je. Poročam se z drugim.
To je odvetnik mojega očeta. Ne zaupaj mu.
Nič. Padel sem po stopnicah.
Tiho! Nekdo prihaja. Ugasni luč.
Kozarec vode, prosim. Žejna sem.
Sedeminosemdeset, pa še vedno plešem.
Spet so nam ukradli avto. Še enkrat!
Jutri gremo z otroki na morje. Če bo sonce.
Žal mi je, nisem te hotel prizadeti.
Zakaj jočeš, mala moja?
Pojdi z mano, skupaj jo bova poiskala.
Nihče ne sme vedeti, da sva se tu srečala.
Moj ded je to hišo zgradil z lastnimi rokami.
Nočem vašega denarja, hočem resnico.
Odpuščeni ste. Poberite svoje stvari.
Dobrodošel doma, sin. Pogrešali smo te.
Lahko noč. Lepo spi in ne misli več na to.
Vse bo še dobro, boš videl.)"},
    {"Croatian", Writing::latin, central, "čćđšž",
     R"(Dobro jutro. Čekate li nas već dugo?
Sjednite, sve ću vam ispričati od početka.
Odjednom smo čuli krik i svjetlo se ugasilo.
Nitko u selu nije nam htio vjerovati.
Moram saznati tko je ubio mojega brata. Dođi sa mnom.
Uzmi kaput, vani je strašno hladno.
Kod kuće. Gledao sam televiziju sa sestrom.
Spustite oružje i dignite ruke uvis!
Liječnik kaže da će preživjeti.
Ne još. Treba se odmoriti. Tako je rođena.
Više nego što ću ikada moći vratiti.
Vlak kreće za pet minuta, požuri!
Prekasno je. Udajem se za drugoga. Žao mi je.
On je odvjetnik mojega oca. Ne vjeruj mu, laže.
Ništa. Pao sam niz stube.
Tiho! Netko dolazi. Ugasi svijeću.
Čašu vode, molim.
Osamdeset sedam, i još plešem.
Opet su nam ukrali auto. Vjeruješ li? Još jednom.
Sutra idemo s djecom na more. Bit će vruće.
Oprosti, nisam te htio povrijediti. Doista žalim.
Zašto plačeš, mala?
Pođi sa mnom, tražit ćemo je zajedno.
Nitko ne smije znati da smo se ovdje sreli. Ni tvoja kći.
Moj djed sagradio je ovu kuću vlastitim rukama.
Ne želim vaš novac, želim istinu.
Otpušteni ste. Pokupite svoje stvari. Doviđenja.
Dobro došao kući, sine. Nedostajao si nam.
Laku noć. Lijepo spavaj i ne misli više na to.
Sve će biti u redu, vidjet ćeš.)"},
    {"Bosnian", Writing::latin, central, "čćđšž",
     R"(Dobro jutro. Čekate li nas već dugo ovdje?
Sjedite, ispričaću vam sve od početka.
Odjednom smo čuli vrisak i nestalo je svjetla.
Niko u selu nije htio da nam povjeruje. Ni hodža.
Moram saznati ko je ubio mog brata. Haj’mo, hoćeš li?
Uzmi kaput, napolju je užasno hladno.
Kod kuće. Gledao sam televizor sa sestrom.
Baci oružje i digni ruke uvis!
Doktor kaže da će preživjeti.
Ne još. Mora se odmoriti, razumiješ. Još je slaba.
Više nego što ću ikad moći vratiti.
Voz kreće za pet minuta, požuri!
Kasno je. Udajem se za drugog. Oprosti mi, dušo.
To je advokat mog oca. Ne vjeruj mu ništa.
Ništa. Pao sam niz stepenice.
Tišina! Neko dolazi.
Čašu vode, molim vas.
Osamdeset i sedam, a još uvijek igram. Mašala, tetkiću.
Opet su nam ukrali auto. Ne mogu vjerovati. Đubrad!
Sutra idemo s djecom na more. Ako bude lijepo, naći ćemo se.
Žao mi je, nisam te htio povrijediti.
Zašto plačeš, malena?
Hajde sa mnom, tražićemo je zajedno. Pođi.
Niko ne smije znati da smo se ovdje sastali. Čuješ?
Moj dedo je svojim rukama napravio ovu kuću.
Neću tvoje pare, hoću istinu. Recite mi šta se događa.
Otpušten si. Pokupi svoje stvari i odlazi. Više te neću gledati.
Dobro došao kući, sine. Falio si nam.
Laku noć. Lijepo spavaj i ne razmišljaj o tome.
Sve će biti dobro, vidjećeš.)"},
    {"Turkish", Writing::latin, turkish, "çğıöşüâîû",
     R"(Günaydın. Bizi çok mu beklediniz?
Oturun, size her şeyi baştan anlatacağım.
Birden bir çığlık duyduk ve ışık söndü.
Köyde kimse bize inanmak istemedi.
Kardeşimi kimin öldürdüğünü öğrenmem lazım.
Paltonu al, dışarısı çok soğuk.
Evdeydim. Kız kardeşimle televizyon izliyordum.
Silahı yere bırak ve ellerini kaldır!
Doktor yaşayacağını söylüyor.
Henüz değil. Dinlenmesi gerekiyor.
Ödeyebileceğimden çok daha fazla.
Tren beş dakika sonra kalkıyor, acele et!
Artık çok geç. Başkasıyla evleniyorum.
Babamın avukatı. Ona güvenme.
Hiçbir şey. Merdivenlerden düştüm.
Sessiz ol! Biri geliyor.
Bir bardak su lütfen.
Seksen yedi, ve hâlâ dans ediyorum.
Arabamızı yine çaldılar.
Yarın çocuklarla denize gideceğiz.
Özür dilerim, seni incitmek istemedim.
Neden ağlıyorsun, küçüğüm?
Benimle gel, onu birlikte arayalım.
Burada buluştuğumuzu kimse bilmemeli.
Dedem bu evi kendi elleriyle yaptı.
Paranızı istemiyorum, gerçeği istiyorum.
Kovuldunuz. Eşyalarınızı toplayın.
Evine hoş geldin, oğlum. Seni özledik.
İyi geceler. Güzel uyu ve bunu düşünme.
Her şey yoluna girecek, göreceksin.)"},
    {"Lithuanian", Writing::latin, baltic, "ąčęėįšųūž",
     R"(Labas rytas. Ar seniai mūsų laukiate?
Sėskitės, viską papasakosiu nuo pradžių.
Staiga išgirdome riksmą ir užgeso šviesa.
Niekas kaime nenorėjo mumis tikėti. Visiškai niekas, supranti?
Turiu sužinoti, kas nužudė mano brolį.
Pasiimk paltą, lauke baisiai šalta.
Namie. Su seserimi žiūrėjau televizorių.
Padėkite ginklą ir pakelkite rankas!
Gydytojas sako, kad ji gyvens. Jis tuo įsitikinęs.
Dar ne. Jai reikia ilsėtis. Užteks šiandienai.
Daugiau, nei kada nors galėsiu grąžinti.
Traukinys išvyksta po penkių minučių, paskubėk!
Per vėlu. Aš teku už kito.
Jis mano tėvo advokatas. Nepasitikėk juo.
Nieko. Nukritau nuo laiptų.
Tyliai! Kažkas ateina.
Stiklinę vandens, prašau.
Aštuoniasdešimt septyneri, ir aš vis dar šoku.
Jie vėl pavogė mūsų automobilį.
Rytoj su vaikais važiuosime prie jūros.
Atleisk, nenorėjau tavęs įskaudinti.
Kodėl verki, mažyte?
Eime su manimi, kartu jos paieškosime. Ji tikrai čia, šalia.
Niekas neturi žinoti, kad čia susitikome.
Mano senelis šį namą pastatė savo rankomis.
Man nereikia jūsų pinigų, man reikia tiesos.
Jūs atleistas. Susirinkite daiktus.
Sveikas sugrįžęs namo, sūnau. Mes tavęs ilgėjomės.
Labanakt. Gerai miegok ir negalvok apie tai. Rytoj bus šviesiau.
Viskas bus gerai, pamatysi. Tikėk manimi, mažyli.)"},
    {"Latvian", Writing::latin, baltic, "āčēģīķļņšūž",
     R"(Labrīt. Vai jūs mūs jau ilgi gaidāt?
Apsēdieties, es jums visu izstāstīšu no sākuma.
Pēkšņi mēs izdzirdējām kliedzienu, un gaisma nodzisa.
Neviens ciemā negribēja mums ticēt.
Man jāuzzina, kas nogalināja manu brāli.
Paņem mēteli, ārā ir briesmīgi auksts.
Mājās. Es ar māsu skatījos televizoru.
Nolieciet ieroci un paceliet rokas! Ātrāk!
Ārsts saka, ka viņa dzīvos.
Vēl ne. Viņai jāatpūšas.
Vairāk, nekā jebkad spēšu atdot.
Vilciens atiet pēc piecām minūtēm, pasteidzies!
Ir par vēlu. Es precos ar citu. Piedod, mīļais.
Viņš ir mana tēva advokāts. Neuzticies viņam.
Nekas. Es nokritu pa kāpnēm.
Klusu! Kāds nāk.
Glāzi ūdens, lūdzu.
Astoņdesmit septiņi, un es joprojām dejoju.
Viņi atkal nozaga mūsu mašīnu.
Rīt mēs ar bērniem brauksim pie jūras.
Piedod, es negribēju tevi sāpināt.
Kāpēc tu raudi, mazā?
Nāc man līdzi, mēs viņu meklēsim kopā.
Neviens nedrīkst zināt, ka mēs te tikāmies.
Mans vectēvs šo māju uzcēla pats savām rokām.
Es negribu jūsu naudu, es gribu patiesību.
Jūs esat atlaists. Savāciet savas mantas.
Laipni lūdzam mājās, dēls. Mums tevis pietrūka.
Ar labu nakti. Guli saldi un nedomā par to. Būs jau labāk.
Viss būs labi, gan jau redzēsi.)"},
    {"Estonian", Writing::latin, estonian, "äöõüšž",
     R"(Tere hommikust. Kas olete meid kaua oodanud?
Istuge, ma räägin teile kõik algusest peale.
Äkki kuulsime karjet ja valgus kustus.
Keegi külas ei tahtnud meid uskuda.
Ma pean teada saama, kes tappis mu venna.
Võta mantel, õues on hirmus külm.
Kodus. Vaatasin õega telerit.
Pange relv maha ja tõstke käed üles!
Arst ütleb, et ta jääb ellu.
Veel mitte. Ta peab puhkama. Šefi käsk.
Rohkem, kui ma eales tagasi maksta jõuan.
Rong väljub viie minuti pärast, tee ruttu!
On liiga hilja. Ma abiellun teisega. Öeldud, tehtud.
Ta on mu isa advokaat. Ära usalda teda.
Ei midagi. Kukkusin trepist alla. Jäin ellu.
Tasa! Keegi tuleb. Kustuta küünal ära.
Klaas vett, palun. Külma vett. Ja üks želee.
Kaheksakümmend seitse, ja tantsin ikka veel. Šampust!
Nad varastasid jälle meie auto ära.
Homme sõidame lastega mere äärde. Ilm tuleb ilus.
Anna andeks, ma ei tahtnud sulle haiget teha. Päriselt.
Miks sa nutad, väikseke?
Tule minuga, otsime ta koos üles. Küll leiame, ära nuta.
Keegi ei tohi teada, et me siin kohtusime. Mõistad?
Mu vanaisa ehitas selle maja oma kätega. Üksi, kännu peale.
Ma ei taha teie raha, ma tahan tõde.
Te olete vallandatud. Pakkige oma asjad. Head päeva.
Tere tulemast koju, poeg. Me igatsesime sind väga. Tõesti väga.
Head ööd. Maga hästi ja ära mõtle sellele.
Kõik saab korda, küll sa näed.)"},
};

} // namespace

std::span<const LanguageSample> easternLanguages() {
    return samples;
}

} // namespace platform
